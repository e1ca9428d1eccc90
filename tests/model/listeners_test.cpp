// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/listeners.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace velquon {

TEST(ListenersTest, AreCalledInTheOrderInWhichTheyWereAdded) {
  Listeners listeners;
  std::string called;
  const Subscription first = listeners.add([&] { called += '1'; });
  const Subscription second = listeners.add([&] { called += '2'; });
  listeners.tell();
  EXPECT_EQ(called, "12");
}

TEST(ListenersTest, AreNoLongerCalledWhenTheirSubscriptionIsGone) {
  Listeners listeners;
  std::string called;
  std::optional first = listeners.add([&] { called += '1'; });
  const Subscription second = listeners.add([&] { called += '2'; });
  first.reset();
  listeners.tell();
  EXPECT_EQ(called, "2");
}

TEST(ListenersTest, AnotherSubscriptionInItsPlaceEndsTheFirst) {
  Listeners listeners;
  std::string called;
  Subscription only = listeners.add([&] { called += '1'; });
  only = listeners.add([&] { called += '2'; });
  listeners.tell();
  EXPECT_EQ(called, "2");
}

TEST(ListenersTest, OneThatAnotherTookAwayIsNotCalledAnyMore) {
  Listeners listeners;
  std::string called;
  std::optional<Subscription> second;
  const Subscription first = listeners.add([&] {
    called += '1';
    second.reset();
  });
  second = listeners.add([&] { called += '2'; });
  listeners.tell();
  EXPECT_EQ(called, "1");
}

TEST(ListenersTest, OneThatTakesItselfAwayIsCalledToItsEndAndOnce) {
  Listeners listeners;
  int called = 0;
  std::optional<Subscription> only;
  only = listeners.add([&only, &called, step = 1] {
    only.reset();
    called += step;
  });
  listeners.tell();
  listeners.tell();
  EXPECT_EQ(called, 1);
}

TEST(ListenersTest, OneThatIsAddedMeanwhileIsCalledTheNextTime) {
  Listeners listeners;
  std::string called;
  std::optional<Subscription> second;
  const Subscription first = listeners.add([&] {
    called += '1';
    if (!second) {
      second = listeners.add([&] { called += '2'; });
    }
  });
  listeners.tell();
  EXPECT_EQ(called, "1");
  listeners.tell();
  EXPECT_EQ(called, "112");
}

TEST(ListenersTest, MayBeGoneBeforeASubscriptionWhichKeepsItsListener) {
  const auto used = std::make_shared<int>(0);
  Subscription only;
  {
    Listeners listeners;
    only = listeners.add([used] { ++*used; });
    listeners.tell();
  }
  EXPECT_EQ(*used, 1);
  EXPECT_EQ(used.use_count(), 2);
  only = Subscription();
  EXPECT_EQ(used.use_count(), 1);
}

}  // namespace velquon

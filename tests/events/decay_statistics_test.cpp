// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "engine/kinematics.h"
#include "events/lambda_decay.h"
#include "events/lepton_decays.h"
#include "events/neutral_pion_decay.h"
#include "tests/support/event_making.h"
#include "tests/support/statistics.h"

// Directions of the daughters in their parent's rest frame.

namespace velquon {
namespace {

using test::critical_kolmogorov;
using test::kolmogorov_statistic;
using test::moving;

constexpr int decays = 40000;

double uniform_cosine(double c) {
  return (c + 1.0) / 2.0;
}
double uniform_angle(double phi) {
  return (phi + PI) / (2.0 * PI);
}

/// Cosines and azimuths of one daughter in the rest frame of a parent that flies along z.
struct Directions {
  std::vector<double> cosines;
  std::vector<double> azimuths;

  void add(const ParticleState& parent, const ParticleState& daughter) {
    const auto momentum = test::boosted_back(parent, daughter);
    cosines.push_back(momentum.along / momentum.size());
    azimuths.push_back(std::atan2(daughter.momentum[1], daughter.momentum[0]));
  }
};

TEST(Isotropy, OfTheMuonInThePionsRestFrame) {
  std::srand(91);
  const ParticleState parent = moving(pion, {0.0, 0.0, 80.0});
  Directions directions;
  for (int i = 0; i < decays; ++i) {
    ParticleState daughter = muon;
    pi_to_mu(parent, daughter);
    directions.add(parent, daughter);
  }
  EXPECT_LT(kolmogorov_statistic(directions.cosines, uniform_cosine), critical_kolmogorov);
  EXPECT_LT(kolmogorov_statistic(directions.azimuths, uniform_angle), critical_kolmogorov);
}

TEST(Isotropy, OfThePhotonsInTheNeutralPionsRestFrame) {
  std::srand(92);
  const ParticleState parent = moving(pizero, {0.0, 0.0, 150.0});
  Directions first;
  Directions second;
  for (int i = 0; i < decays; ++i) {
    ParticleState photon1 = photon;
    ParticleState photon2 = photon;
    pizero_to_2gamma(parent, photon1, photon2);
    first.add(parent, photon1);
    second.add(parent, photon2);
  }
  EXPECT_LT(kolmogorov_statistic(first.cosines, uniform_cosine), critical_kolmogorov);
  EXPECT_LT(kolmogorov_statistic(second.cosines, uniform_cosine), critical_kolmogorov);
  EXPECT_LT(kolmogorov_statistic(first.azimuths, uniform_angle), critical_kolmogorov);
}

TEST(ElectronAzimuth, IsUniformRoundTheMuonsFlight) {
  std::srand(93);
  const ParticleState parent = moving(muon, {0.0, 0.0, 80.0});
  Directions directions;
  for (int i = 0; i < decays; ++i) {
    ParticleState daughter = electron;
    mu_to_e(parent, daughter);
    directions.add(parent, daughter);
  }
  EXPECT_LT(kolmogorov_statistic(directions.azimuths, uniform_angle), critical_kolmogorov);
  EXPECT_GT(kolmogorov_statistic(directions.cosines, uniform_cosine), critical_kolmogorov)
      << "while its cosine is not: the decay violates parity";
}

TEST(PairAzimuth, IsUniformRoundThePhotonsLine) {
  std::srand(94);
  const ParticleState parent = moving(photon, {0.0, 0.0, 50.0});
  std::vector<double> azimuths;
  std::vector<double> shares;
  for (int i = 0; i < decays; ++i) {
    ParticleState the_electron = electron;
    ParticleState the_positron = positron;
    gamma_to_pair(parent, the_electron, the_positron);
    azimuths.push_back(std::atan2(the_electron.momentum[1], the_electron.momentum[0]));
    shares.push_back(test::length(the_electron.momentum) / 50.0);
  }
  EXPECT_LT(kolmogorov_statistic(azimuths, uniform_angle), critical_kolmogorov);
  const auto uniform_share = [](double share) { return (share - 0.2) / 0.6; };
  EXPECT_LT(kolmogorov_statistic(shares, uniform_share), critical_kolmogorov)
      << "the electron takes 20 to 80 per cent of the energy, uniformly";
}

TEST(PairOpeningAngle, IsUniformBetween0_7And1_3TimesMassOverMomentum) {
  std::srand(95);
  std::vector<double> ratios;
  for (int i = 0; i < decays; ++i) {
    const ParticleState parent = moving(photon, {12.0, -20.0, 9.0});
    ParticleState the_electron = electron;
    ParticleState the_positron = positron;
    gamma_to_pair(parent, the_electron, the_positron);
    const double p1 = test::length(the_electron.momentum);
    const double angle =
        std::atan2(test::length(test::cross(the_electron.momentum, parent.momentum)),
                   test::scalar(the_electron.momentum, parent.momentum));
    const double ratio = angle / (0.51 / p1);
    ASSERT_GE(ratio, 0.7 - 1e-9);
    ASSERT_LE(ratio, 1.3 + 1e-9);
    ratios.push_back(ratio);
  }
  const auto uniform_ratio = [](double ratio) { return (ratio - 0.7) / 0.6; };
  EXPECT_LT(kolmogorov_statistic(ratios, uniform_ratio), critical_kolmogorov);
}

/// Integral of the weight 1 + 0.7 cos theta on a uniform theta, from 0, as a share of the whole.
double proton_angle_law(double theta) {
  return (theta + 0.7 * std::sin(theta)) / PI;
}

TEST(ProtonAngle, HasTheWeight1Plus0_7CosineOnAUniformAngle) {
  std::srand(96);
  std::vector<double> angles(decays);
  for (double& angle : angles) {
    angle = get_proton_angle();
    ASSERT_GE(angle, 0.0);
    ASSERT_LE(angle, 3.14159265);
  }
  EXPECT_LT(kolmogorov_statistic(angles, proton_angle_law), critical_kolmogorov);
  const auto without_weight = [](double theta) { return theta / PI; };
  EXPECT_GT(kolmogorov_statistic(angles, without_weight), critical_kolmogorov);
}

TEST(LambdaAsymmetry, LiesAcrossTheFlightAndNotAlongIt) {
  std::srand(97);
  // A Lambda along y: its second across component is along z, where the proton prefers +z.
  const ParticleState parent = moving(lambda, {0.0, 500.0, 0.0});
  std::vector<double> angles;
  double forward = 0.0;
  for (int i = 0; i < decays; ++i) {
    ParticleState the_proton = proton;
    ParticleState the_pion = pion;
    lambda_to_charged(parent, the_proton, the_pion);
    angles.push_back(std::acos(the_proton.momentum[2] / 100.5));
    // Without a component along the flight in the rest frame the proton gets P E1* / M.
    forward += the_proton.momentum[1] > 500.0 * 943.6 / 1115.6 ? 1.0 : 0.0;
  }
  EXPECT_LT(kolmogorov_statistic(angles, proton_angle_law), critical_kolmogorov);
  EXPECT_LT(std::fabs(test::binomial_z(forward, decays, 0.5)), test::critical_z);
}

}  // namespace
}  // namespace velquon

// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAction>
#include <QDir>

#include <sys/stat.h>
#include <cerrno>

#include "tests/support/call_faults.h"
#include "tests/support/case_name.h"
#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/plain_rights.h"

namespace velquon::test {

namespace {

RecordingDialogs::Alert not_saved(const QString& path, const char* reason) {
  return {
      QStringLiteral("Not saved"),
      QStringLiteral("Velquon can't write the file %1: %2.").arg(path, QString::fromUtf8(reason))};
}

class SaveFailureTest : public DocumentsFixture {
 protected:
  void expectFailure(const QString& path, const char* reason) {
    const Shown before = shown();
    dialogs().answer = path;
    choose("save_item");
    EXPECT_EQ(dialogs().alerts, std::vector{not_saved(path, reason)});
    EXPECT_EQ(differences(before, shown()), "");
  }

  QStringList filesInFolder() {
    return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                    QDir::NoDotAndDotDot);
  }
};

/// Sizes of events whose files are written at the first call or kept back until the last.
class FullDiskTest : public SaveFailureTest, public ::testing::WithParamInterface<int> {};

TEST_P(FullDiskTest, LeavesTheOldFileAndNoOther) {
  const QString file = write(QStringLiteral("a.cwd"), event_file(spiral(2)));
  controller().setChamberData(spiral(GetParam()));
  const QByteArray before = read(file);
  {
    const velquon::test::FileSizeLimit limit(1000);
    expectFailure(file, "File too large");
  }
  EXPECT_EQ(read(file), before);
  EXPECT_EQ(filesInFolder(), QStringList{QStringLiteral("a.cwd")});
}

TEST_P(FullDiskTest, LeavesNothingOfANewFile) {
  controller().setChamberData(spiral(GetParam()));
  {
    const velquon::test::FileSizeLimit limit(1000);
    expectFailure(path(QStringLiteral("new.cwd")), "File too large");
  }
  EXPECT_TRUE(filesInFolder().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Points, FullDiskTest, ::testing::Values(50, 350, 5000));

TEST_F(SaveFailureTest, AFolderThatIsMissing) {
  makeEvent(0);
  expectFailure(path(QStringLiteral("missing/a.cwd")), "No such file or directory");
}

TEST_F(SaveFailureTest, AFileInPlaceOfAFolder) {
  makeEvent(0);
  write(QStringLiteral("file"), "x");
  expectFailure(path(QStringLiteral("file/a.cwd")), "Not a directory");
}

TEST_F(SaveFailureTest, AFolderInPlaceOfTheFile) {
  makeEvent(0);
  ASSERT_TRUE(QDir(folder()).mkdir(QStringLiteral("a.cwd")));
  expectFailure(path(QStringLiteral("a.cwd")), "Is a directory");
  EXPECT_EQ(filesInFolder(), QStringList{QStringLiteral("a.cwd")});
}

TEST_F(SaveFailureTest, AFolderThatMayNotBeWritten) {
  makeEvent(0);
  const QString file = write(QStringLiteral("a.cwd"), "old");
  const QFile::Permissions rights = QFile::permissions(folder());
  ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
  const int told = velquon::test::with_plain_rights([&] {
    dialogs().answer = file;
    choose("save_item");
    return dialogs().alerts == std::vector{not_saved(file, "Permission denied")} ? 1 : 0;
  });
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(QFile::setPermissions(folder(), rights));
  EXPECT_EQ(read(file), "old");
}

/// A call of the system that fails, and the reason as it is told.
struct FailingCall {
  std::string name;
  std::vector<velquon::test::CallFault> faults;
  const char* reason;
};
class FailingDiskTest : public SaveFailureTest,
                        public ::testing::WithParamInterface<FailingCall> {};

TEST_P(FailingDiskTest, LeavesTheOldFileAndNoOther) {
  const QString file = write(QStringLiteral("a.cwd"), event_file(spiral(2)));
  const QByteArray before = read(file);
  controller().setChamberData(spiral(50));
  {
    const velquon::test::CallFaultsInForce faults(GetParam().faults);
    expectFailure(file, GetParam().reason);
  }
  EXPECT_EQ(read(file), before);
  EXPECT_EQ(filesInFolder(), QStringList{QStringLiteral("a.cwd")});
}

INSTANTIATE_TEST_SUITE_P(
    Calls, FailingDiskTest,
    ::testing::Values(
        FailingCall{"SyncEio", {{.call = "fsync", .error = EIO}}, "Input/output error"},
        FailingCall{
            "SyncFullDisk", {{.call = "fsync", .error = ENOSPC}}, "No space left on device"},
        FailingCall{"SyncQuota", {{.call = "fsync", .error = EDQUOT}}, "Disk quota exceeded"},
        FailingCall{"WriteEio", {{.call = "write", .error = EIO}}, "Input/output error"},
        FailingCall{"Rename", {{.call = "renameat", .error = EIO}}, "Input/output error"}),
    velquon::test::case_name<FailingCall>);

TEST_F(SaveFailureTest, APipeInPlaceOfTheFile) {
  makeEvent(0);
  const QString pipe = path(QStringLiteral("a.cwd"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  expectFailure(pipe, "Is a named pipe, not a file");
  EXPECT_EQ(filesInFolder(), QStringList{QStringLiteral("a.cwd")});
}

TEST_F(SaveFailureTest, CanBeMendedBySavingElsewhere) {
  makeEvent(0);
  dialogs().answer = path(QStringLiteral("missing/a.cwd"));
  choose("save_item");
  dialogs().answer = path(QStringLiteral("a.cwd"));
  choose("save_item");
  EXPECT_EQ(dialogs().alerts.size(), 1U);
  EXPECT_EQ(filesInFolder(), QStringList{QStringLiteral("a.cwd")});
}

}  // namespace

}  // namespace velquon::test

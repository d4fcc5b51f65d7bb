#include "frame/sqlite_settings_tree.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

#include "support/child_process.h"
#include "support/temp_folder.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::fileBytes;
using test::inChild;
using test::inChildWithoutRights;
using test::KillableChild;
using test::TempFolder;
using test::writeBytes;

constexpr auto noPatience = 1ms;
constexpr auto muchPatience = 60s;

class SqliteSettingsTreeTest : public testing::Test {
 protected:
  void makeTree() {
    SqliteSettingsTree tree(file);
    ASSERT_EQ(tree.createKey("A", "class"), SettingsTree::Creation::created);
    ASSERT_TRUE(tree.writeValue("A", "n", "kept"));
  }
  SqliteConnection rawConnection() const {
    sqlite3* made = nullptr;
    sqlite3_open(file.c_str(), &made);
    return SqliteConnection(made);
  }
  void sql(const char* text) const {
    const SqliteConnection connection = rawConnection();
    ASSERT_EQ(sqlite3_exec(connection.get(), text, nullptr, nullptr, nullptr), SQLITE_OK);
  }
  /// The tree says why, reads as empty, refuses to write, and leaves the file alone.
  static void expectRefused(const fs::path& path, const std::string& why) {
    const std::string before = fileBytes(path);
    {
      SqliteSettingsTree tree(path, noPatience);
      EXPECT_EQ(tree.unreadable(), why);
      EXPECT_FALSE(tree.lockedByAnother());
      EXPECT_FALSE(tree.keyExists("A"));
      EXPECT_FALSE(tree.readValue("A", "n"));
      EXPECT_FALSE(tree.writeValue("A", "n", "x"));
      EXPECT_EQ(tree.createKey("B", ""), SettingsTree::Creation::failed);
      EXPECT_FALSE(tree.deleteKey("A"));
      bool ran = false;
      EXPECT_FALSE(tree.inOneChange([&] { return ran = true; }));
      EXPECT_FALSE(ran);
      EXPECT_EQ(tree.unreadable(), why);
    }
    EXPECT_TRUE(fileBytes(path) == before);
  }

  TempFolder folder;
  fs::path file = folder / "settings.db";
};

TEST_F(SqliteSettingsTreeTest, ValuesAndClassesOutliveTheProgram) {
  makeTree();
  SqliteSettingsTree tree(file);
  EXPECT_EQ(tree.readValue("A", "n"), RegWert("kept"));
  EXPECT_EQ(tree.className("A"), "class");
  EXPECT_EQ(tree.className("B"), std::nullopt);
}

TEST_F(SqliteSettingsTreeTest, OnlyTheKeyItselfGetsTheClass) {
  SqliteSettingsTree tree(file);
  tree.createKey(R"(A\B)", "class");
  EXPECT_EQ(tree.className("A"), "");
  EXPECT_EQ(tree.className(R"(A\B)"), "class");
}

TEST_F(SqliteSettingsTreeTest, AMissingFolderIsMadeWithTheFirstKeyOnly) {
  const fs::path deep = folder / "a" / "b" / "settings.db";
  SqliteSettingsTree tree(deep);
  EXPECT_EQ(tree.unreadable(), "");
  EXPECT_FALSE(tree.keyExists("A"));
  EXPECT_FALSE(tree.writeValue("A", "n", "x"));
  EXPECT_FALSE(fs::exists(folder / "a"));
  EXPECT_EQ(tree.createKey("A", ""), SettingsTree::Creation::created);
  EXPECT_TRUE(fs::exists(deep));
}

TEST_F(SqliteSettingsTreeTest, AFolderThatCannotBeMadeFailsTheCreationOnly) {
  writeBytes(folder / "a", "a file");
  SqliteSettingsTree tree(folder / "a" / "settings.db");
  EXPECT_EQ(tree.createKey("A", ""), SettingsTree::Creation::failed);
  EXPECT_EQ(tree.unreadable(), "");
  EXPECT_EQ(fileBytes(folder / "a"), "a file");
}

TEST_F(SqliteSettingsTreeTest, AnEmptyFileIsAnEmptyTree) {
  writeBytes(file, "");
  SqliteSettingsTree tree(file);
  EXPECT_EQ(tree.unreadable(), "");
  EXPECT_FALSE(tree.keyExists("A"));
  EXPECT_EQ(tree.createKey("A", ""), SettingsTree::Creation::created);
  EXPECT_TRUE(tree.keyExists("A"));
}

TEST_F(SqliteSettingsTreeTest, AFileThatIsNoDatabaseStaysUntouched) {
  for (const std::string& bytes : {std::string("x"), std::string("[KorInfo]\nVersion=v555\n"),
                                   std::string(5000, '\0'), std::string(8192, 'q')}) {
    writeBytes(file, bytes);
    SCOPED_TRACE(std::to_string(bytes.size()) + " bytes of " + bytes.substr(0, 1));
    expectRefused(file, "file is not a database");
  }
}

TEST_F(SqliteSettingsTreeTest, ADamagedDatabaseStaysUntouched) {
  makeTree();
  std::string bytes = fileBytes(file);
  std::fill(bytes.begin() + 4096, bytes.begin() + 8192, '\x5A');
  writeBytes(file, bytes);
  const std::string before = fileBytes(file);
  SqliteSettingsTree tree(file);
  EXPECT_NE(tree.unreadable(), "");
  EXPECT_FALSE(tree.keyExists("A"));
  EXPECT_EQ(tree.createKey("B", ""), SettingsTree::Creation::failed);
  EXPECT_TRUE(fileBytes(file) == before);
}

TEST_F(SqliteSettingsTreeTest, ACutDatabaseStaysUntouched) {
  makeTree();
  writeBytes(file, fileBytes(file).substr(0, 4096));
  expectRefused(file, "database disk image is malformed");
}

TEST_F(SqliteSettingsTreeTest, AnotherProgramsDatabaseStaysUntouched) {
  sql("CREATE TABLE DIC (IDNr INTEGER)");
  expectRefused(file, "no such table: settings_key");
}

TEST_F(SqliteSettingsTreeTest, TablesWithOtherColumnsStayUntouched) {
  sql("CREATE TABLE settings_key (path TEXT, class TEXT); CREATE TABLE settings_value (path TEXT, name "
      "TEXT)");
  expectRefused(file, "no such column: v.value");
}

TEST_F(SqliteSettingsTreeTest, AFolderInItsPlaceIsRefused) {
  fs::create_directory(file);
  SqliteSettingsTree tree(file);
  EXPECT_NE(tree.unreadable(), "");
  EXPECT_EQ(tree.createKey("A", ""), SettingsTree::Creation::failed);
}

TEST_F(SqliteSettingsTreeTest, AFileWithoutRightsSaysSo) {
  makeTree();
  fs::permissions(file, fs::perms::owner_write, fs::perm_options::replace);
  EXPECT_TRUE(inChildWithoutRights([&] {
    SqliteSettingsTree tree(file);
    return tree.unreadable() == "unable to open database file: Permission denied" && !tree.keyExists("A") &&
           tree.createKey("B", "") == SettingsTree::Creation::failed;
  }));
}

TEST_F(SqliteSettingsTreeTest, AFolderWithoutRightsSaysSo) {
  makeTree();
  fs::permissions(folder.path(), fs::perms::owner_all, fs::perm_options::replace);
  const auto refused = [&] {
    SqliteSettingsTree tree(file);
    return tree.unreadable() == "Permission denied" &&
           tree.createKey("B", "") == SettingsTree::Creation::failed;
  };
  if (geteuid() != 0) fs::permissions(folder.path(), fs::perms::none, fs::perm_options::replace);
  EXPECT_TRUE(inChildWithoutRights(refused));
  fs::permissions(folder.path(), fs::perms::owner_all, fs::perm_options::replace);
}

TEST_F(SqliteSettingsTreeTest, AFileThatCanOnlyBeReadIsReadAndNotWritten) {
  makeTree();
  fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read,
                  fs::perm_options::replace);
  const std::string before = fileBytes(file);
  EXPECT_TRUE(inChildWithoutRights([&] {
    SqliteSettingsTree tree(file);
    const bool refusesWrites = !tree.writeValue("A", "n", "x") && !tree.deleteKey("A") &&
                               tree.createKey("B", "") == SettingsTree::Creation::failed;
    return refusesWrites && tree.readValue("A", "n") == RegWert("kept") && tree.unreadable().empty();
  }));
  EXPECT_TRUE(fileBytes(file) == before);
}

TEST_F(SqliteSettingsTreeTest, ALockedFileSaysSoAndStaysUntouched) {
  makeTree();
  const SqliteConnection other = rawConnection();
  ASSERT_EQ(sqlite3_exec(other.get(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  SqliteSettingsTree tree(file, noPatience);
  EXPECT_EQ(tree.unreadable(), "database is locked");
  EXPECT_TRUE(tree.lockedByAnother());
  EXPECT_FALSE(tree.keyExists("A"));
  EXPECT_FALSE(tree.writeValue("A", "n", "x"));
  ASSERT_EQ(sqlite3_exec(other.get(), "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
  // Decided for the session: what was told to the user stays true.
  EXPECT_EQ(tree.unreadable(), "database is locked");
  EXPECT_TRUE(tree.lockedByAnother());
  EXPECT_FALSE(tree.writeValue("A", "n", "x"));
  EXPECT_EQ(SqliteSettingsTree(file).readValue("A", "n"), RegWert("kept"));
}

TEST_F(SqliteSettingsTreeTest, ALockThatComesLaterIsTellableFromAMissingValueAndPasses) {
  makeTree();
  SqliteSettingsTree tree(file, noPatience);
  const SqliteConnection other = rawConnection();
  ASSERT_EQ(sqlite3_exec(other.get(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_FALSE(tree.readValue("A", "n"));
  EXPECT_EQ(tree.unreadable(), "database is locked");
  EXPECT_TRUE(tree.lockedByAnother());
  EXPECT_FALSE(tree.writeValue("A", "n", "x"));
  ASSERT_EQ(sqlite3_exec(other.get(), "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_EQ(tree.readValue("A", "n"), RegWert("kept"));
  EXPECT_EQ(tree.unreadable(), "");
  EXPECT_FALSE(tree.lockedByAnother());
}

TEST_F(SqliteSettingsTreeTest, AReaderDoesNotHinderAWriterUntilItsEnd) {
  makeTree();
  const SqliteConnection other = rawConnection();
  ASSERT_EQ(sqlite3_exec(other.get(), "BEGIN; SELECT * FROM settings_key", nullptr, nullptr, nullptr),
            SQLITE_OK);
  SqliteSettingsTree tree(file, noPatience);
  EXPECT_FALSE(tree.writeValue("A", "n", "x"));
  EXPECT_EQ(tree.readValue("A", "n"), RegWert("kept"));
  ASSERT_EQ(sqlite3_exec(other.get(), "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_TRUE(tree.writeValue("A", "n", "x"));
}

TEST_F(SqliteSettingsTreeTest, ValuesOfOtherKindsAreThereButNotReadable) {
  makeTree();
  sql("INSERT INTO settings_value VALUES ('A', 'real', 1.5), ('A', 'blob', x'00'), ('A', 'wide', "
      "4294967296)");
  SqliteSettingsTree tree(file);
  for (const char* name : {"real", "blob", "wide"})
    EXPECT_EQ(tree.readValue("A", name), RegWert(std::monostate{}));
  EXPECT_FALSE(tree.writeValue("A", "n", std::monostate{}));
}

TEST_F(SqliteSettingsTreeTest, NamesKeepTheLettersTheyWereFirstWrittenWith) {
  makeTree();
  SqliteSettingsTree(file).writeValue("a", "N", "other");
  const SqliteConnection connection = rawConnection();
  SqliteStatement row(connection.get(), "SELECT path, name, value FROM settings_value");
  ASSERT_TRUE(row.step());
  EXPECT_EQ(row.text(0) + row.text(1) + row.text(2), "Another");
}

TEST_F(SqliteSettingsTreeTest, AChangeThatIsLeftByAnExceptionIsUndone) {
  SqliteSettingsTree tree(file);
  EXPECT_THROW(tree.inOneChange([&]() -> bool {
    tree.createKey("A", "");
    throw std::runtime_error("broken off");
  }),
               std::runtime_error);
  EXPECT_FALSE(tree.keyExists("A"));
  EXPECT_EQ(tree.unreadable(), "");
  EXPECT_EQ(tree.createKey("A", ""), SettingsTree::Creation::created);
}

TEST_F(SqliteSettingsTreeTest, OthersSeeAChangeOnlyWhole) {
  makeTree();
  SqliteSettingsTree tree(file);
  tree.inOneChange([&] {
    tree.writeValue("A", "n", "new");
    EXPECT_EQ(SqliteSettingsTree(file, noPatience).readValue("A", "n"), RegWert("kept"));
    return true;
  });
  EXPECT_EQ(SqliteSettingsTree(file).readValue("A", "n"), RegWert("new"));
}

TEST_F(SqliteSettingsTreeTest, AFullDiskKeepsTheOldValues) {
  makeTree();
  EXPECT_TRUE(inChild([&] {
    const auto size = static_cast<rlim_t>(fs::file_size(file));
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{size, size};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return false;
    SqliteSettingsTree tree(file);
    const bool refused = !tree.inOneChange([&] {
      tree.writeValue("A", "n", std::string(16U << 20U, 'x'));  // more than SQLite keeps in memory
      tree.writeValue("A", "m", "must not count alone");
      return true;
    });
    return refused && !tree.writeValue("A", "n", std::string(100000, 'x')) &&
           tree.readValue("A", "n") == RegWert("kept") && !tree.readValue("A", "m");
  }));
  SqliteSettingsTree tree(file);
  EXPECT_EQ(tree.unreadable(), "");
  EXPECT_EQ(tree.readValue("A", "n"), RegWert("kept"));
}

TEST_F(SqliteSettingsTreeTest, AKillAtAnyMomentLeavesWholeChanges) {
  makeTree();
  const auto writePairs = [&](const std::function<void()>& beat) {
    SqliteSettingsTree tree(file, muchPatience);
    for (int i = 0;; ++i) {
      const std::string text(static_cast<std::size_t>(i * 37 % 9000), static_cast<char>('a' + i % 26));
      tree.inOneChange(
          [&] { return tree.writeValue("A", "left", text) && tree.writeValue("A", "right", text); });
      beat();
    }
  };
  for (int round = 0; round < 40; ++round) {
    KillableChild writer(writePairs);
    ASSERT_TRUE(writer.awaitBeats(1 + round % 7));
    writer.kill();
    SqliteSettingsTree tree(file);
    ASSERT_EQ(tree.unreadable(), "");
    ASSERT_TRUE(tree.readValue("A", "left"));
    ASSERT_EQ(tree.readValue("A", "left"), tree.readValue("A", "right"));
    ASSERT_EQ(tree.readValue("A", "n"), RegWert("kept"));
  }
}

TEST_F(SqliteSettingsTreeTest, TwoProcessesWriteAndReadAtOnce) {
  makeTree();
  constexpr int rounds = 60;
  const auto countUp = [&](SqliteSettingsTree& tree) {
    return tree.inOneChange([&] {
      const auto value = tree.readValue("A", "count").value_or(RegWert(std::int32_t{0}));
      return tree.writeValue("A", "count", std::get<std::int32_t>(value) + 1);
    });
  };
  KillableChild other([&](const std::function<void()>& beat) {
    SqliteSettingsTree tree(file, muchPatience);
    for (int i = 0; i < rounds; ++i) {
      if (countUp(tree) && tree.writeValue("A", "child", std::int32_t{i})) beat();
    }
  });
  SqliteSettingsTree tree(file, muchPatience);
  for (int i = 0; i < rounds; ++i) {
    EXPECT_TRUE(countUp(tree));
    EXPECT_TRUE(tree.writeValue("A", "parent", std::int32_t{i}));
    EXPECT_EQ(tree.readValue("A", "n"), RegWert("kept"));
  }
  EXPECT_TRUE(other.awaitBeats(rounds));
  EXPECT_EQ(tree.readValue("A", "count"), RegWert(std::int32_t{2 * rounds}));
  EXPECT_EQ(tree.readValue("A", "child"), RegWert(std::int32_t{rounds - 1}));
  EXPECT_EQ(tree.readValue("A", "parent"), RegWert(std::int32_t{rounds - 1}));
}

TEST_F(SqliteSettingsTreeTest, TwoProcessesMayMakeTheFileAtOnce) {
  for (int round = 0; round < 10; ++round) {
    fs::remove(file);
    KillableChild other([&](const std::function<void()>& beat) {
      SqliteSettingsTree tree(file, muchPatience);
      if (tree.createKey("A", "") != SettingsTree::Creation::failed && tree.keyExists("A")) beat();
    });
    SqliteSettingsTree tree(file, muchPatience);
    EXPECT_NE(tree.createKey("A", ""), SettingsTree::Creation::failed);
    EXPECT_TRUE(tree.keyExists("A"));
    EXPECT_TRUE(other.awaitBeats(1));
  }
}

}  // namespace
}  // namespace korvin

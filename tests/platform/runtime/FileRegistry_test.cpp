#include "FileRegistry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <thread>

#include "FailureOf.h"
#include "TempFolder.h"
#include "UserFolders.h"

namespace tarnel::test {
namespace {

struct Registries : testing::Test {
  TempFolder folder;
  std::filesystem::path file = folder / "registry";
  FileRegistry registry{file};
};

TEST_F(Registries, strangeNamesAndValuesComeBackInANewRun) {
  const std::string strange = "A & \"B\" 'C' \\n\t\r\n\\ = ;#[ü]";
  const std::string key = "Software\\Mail\\A & \"B\"\t\nü";
  EXPECT_TRUE(registry.setValue(key, strange, strange));
  EXPECT_TRUE(registry.setValue(key, "", ""));
  EXPECT_TRUE(registry.setValue(key, "number", -2147483647 - 1));
  EXPECT_TRUE(registry.setValue(key, "bytes", Bytes{0, 9, 10, 255}));
  const FileRegistry next(file);
  EXPECT_EQ(next.subKeys("software\\MAIL"), std::vector<std::string>{"A & \"B\"\t\nü"});
  EXPECT_EQ(next.valueNames(key), (std::vector<std::string>{strange, "", "number", "bytes"}));
  EXPECT_EQ(next.value(key, strange), Variant(strange));
  EXPECT_EQ(next.value(key, ""), Variant(""));
  EXPECT_EQ(next.value(key, "NUMBER"), Variant(-2147483647 - 1));
  EXPECT_EQ(next.value(key, "bytes"), Variant(Bytes{0, 9, 10, 255}));
}

TEST_F(Registries, missingIsEmptyAndDeletingItIsNoFailure) {
  EXPECT_FALSE(registry.keyExists("A"));
  EXPECT_TRUE(registry.value("A", "b").isEmpty());
  EXPECT_TRUE(registry.subKeys("A").empty());
  EXPECT_TRUE(registry.deleteKey("A"));
  EXPECT_TRUE(registry.deleteValue("A", "b"));
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_FALSE(registry.setValue("A", "b", 0.5)) << "a kind that can't be kept";
}

TEST_F(Registries, keyGoesWithAllBelowItAndNothingBeside) {
  for (const char* key : {"A\\B\\C", "A\\BB", "a\\b\\D"}) EXPECT_TRUE(registry.createKey(key));
  EXPECT_EQ(registry.subKeys("A\\B"), (std::vector<std::string>{"C", "D"}));
  EXPECT_TRUE(registry.deleteKey("a\\B"));
  EXPECT_EQ(registry.subKeys("A"), std::vector<std::string>{"BB"});
  EXPECT_TRUE(registry.setValue("A", "x", 1) && registry.setValue("A", "X", 2));
  EXPECT_EQ(registry.valueNames("A"), std::vector<std::string>{"x"});
  EXPECT_TRUE(registry.deleteValue("A", "X"));
  EXPECT_TRUE(registry.valueNames("A").empty());
}

TEST_F(Registries, damagedFileIsToldByLineAndLeftAlone) {
  const std::string head = "tarnel registry 1\nkey\tA\n";
  for (const std::string& text :
       {std::string("anything"), std::string("\n"), head + "text\tn\tbad\\x", head + "number\tn\t12x",
        head + "bytes\tn\t0g", head + "blob\tn\tv", head + "text\tn", std::string("tarnel registry 1\ntext\tn\tv")}) {
    folder.write("registry", text);
    const std::string told = failureTextOf([&] { registry.setValue("A", "b", 1); });
    EXPECT_TRUE(told.starts_with("75: ") && told.find("at line ") != std::string::npos) << text << told;
    EXPECT_EQ(contentsOf(file), text);
  }
}

TEST_F(Registries, storeThatCantBeWrittenOrReadIsTold) {
  folder.write("registry", "");
  EXPECT_FALSE(FileRegistry(file / "below a file").setValue("A", "b", "lost"));
  EXPECT_EQ(contentsOf(file), "");
  EXPECT_TRUE(contains(failureTextOf([&] { FileRegistry(folder.path()).keyExists("A"); }), "directory"));
}

TEST_F(Registries, writersAtTheSameTimeLoseNothingOfOneAnother) {
  constexpr int writers = 4, keys = 10;
  std::vector<std::thread> threads;
  for (int i = 0; i < writers; ++i)
    threads.emplace_back([this, i] {
      FileRegistry own(file);
      const auto held = i % 2 == 0 ? own.hold() : nullptr;
      for (int k = 0; k < keys; ++k) own.setValue("A\\" + std::to_string(i * keys + k), "v", i);
    });
  for (std::thread& each : threads) each.join();
  EXPECT_EQ(registry.subKeys("A").size(), writers * keys);
}

TEST_F(Registries, aWriteKeepsThePermissionsAndLeavesItsLockAloneBeside) {
  EXPECT_TRUE(registry.createKey("A"));
  std::filesystem::permissions(file, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_TRUE(registry.createKey("B"));
  EXPECT_EQ(std::filesystem::status(file).permissions(), static_cast<std::filesystem::perms>(0600));
  EXPECT_TRUE(std::filesystem::exists(folder / "registry.lock"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 2);
}

// Wherever the program is started, its files are not made there.
TEST(Folders, aHomeThatIsNoWholePathIsLookedUpElsewhere) {
  const char* variables[] = {"HOME", "XDG_CONFIG_HOME"};
  std::map<std::string, std::string> before;
  for (const char* name : variables)
    if (const char* value = std::getenv(name)) before[name] = value;
  unsetenv("XDG_CONFIG_HOME");
  unsetenv("HOME");
  const std::filesystem::path known = userFolders::config();
  EXPECT_TRUE(known.is_absolute());
  for (const char* home : {"", "here", "./here"}) {
    setenv("HOME", home, 1);
    EXPECT_EQ(userFolders::config(), known) << home;
  }
  setenv("HOME", "/home/me", 1);
  EXPECT_EQ(userFolders::config(), "/home/me/.config/tarnel");
  for (const auto& [name, value] : before) setenv(name.c_str(), value.c_str(), 1);
}

}  // namespace
}  // namespace tarnel::test

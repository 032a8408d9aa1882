#include "FileRegistry.h"

#include <gtest/gtest.h>

#include "FailureOf.h"
#include "TempFolder.h"

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

TEST_F(Registries, aWriteKeepsThePermissionsAndLeavesNothingBeside) {
  EXPECT_TRUE(registry.createKey("A"));
  std::filesystem::permissions(file, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_TRUE(registry.createKey("B"));
  EXPECT_EQ(std::filesystem::status(file).permissions(), static_cast<std::filesystem::perms>(0600));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

}  // namespace
}  // namespace tarnel::test

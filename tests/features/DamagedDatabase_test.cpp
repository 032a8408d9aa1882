#include "Story.h"

namespace tarnel::test {
namespace {

struct DamagedDatabase : Story {
  using Reports = std::vector<std::string>;

  // The wizard must end by itself before it is shown, with these reports, the first of which takes its window down, a
  // message that names the damage, and a failing exit code.
  void expectFailure(const std::string& name, const Reports& reports, const std::string& words) {
    const ProgramResult result = drive("show\n");
    EXPECT_EQ(result.exitCode, 1) << name;
    std::string expected = "reports: " + reports.front() + "\nevent: CloseTheWizard\n";
    for (std::size_t i = 1; i < reports.size(); ++i) expected += "reports: " + reports[i] + "\n";
    EXPECT_EQ(told(result), expected + "failed\n") << name;
    EXPECT_EQ(result.reply("show"), nullptr) << name;
    EXPECT_NE(result.errors.find(words), std::string::npos) << name << ": " << result.errors;
    EXPECT_NE(result.errors.find("errors.txt"), std::string::npos) << name;
  }
};

TEST_F(DamagedDatabase, fileThatIsNoTaskDatabaseIsToldAndLeftAsItIs) {
  const Reports reports{"GetData -2147467259", "loadMySettings 91"};
  const std::string whole = contentsOf(run.home / "tasks.db");
  const std::pair<std::string, std::string> files[] = {
      {"", "is not a task database"},
      {"Dear diary, this is no database.", "is not a task database"},
      {whole.substr(0, 50), "is damaged"},
      {whole.substr(0, whole.size() / 2), "is damaged"},
      {whole.substr(0, whole.size() - 1), "is damaged"},
      {std::string(whole).replace(100, 2000, 2000, '\x55'), "is damaged"},
      {std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(4096, '\1'), "is a Microsoft Jet file"}};
  for (const auto& [contents, words] : files) {
    run.home.write("tasks.db", contents);
    expectFailure(contents.substr(0, 8), reports, words);
    EXPECT_EQ(contentsOf(run.home / "tasks.db"), contents) << words;
  }
  std::filesystem::remove(run.home / "tasks.db");
  expectFailure("no file", reports, "tasks.db\" does not exist");
  EXPECT_FALSE(std::filesystem::exists(run.home / "tasks.db"));
  std::filesystem::create_directory(run.home / "tasks.db");
  expectFailure("a folder", reports, "is not a file");
}

TEST_F(DamagedDatabase, contentsThatCannotBeEndTheWizardAndChangeNoRow) {
  addTask("A", "Kept");
  EXPECT_EQ(drive("").exitCode, 0) << "makes the rows of the window's place";
  const std::string sound = contentsOf(run.home / "tasks.db");
  const Reports noData{"GetData -2147217900", "loadMySettings 91"},
      noTasks{"GetDataKEY -2147217900", "GetTarnelTasks 91"};
  struct Damage {
    std::string statement;
    Reports reports;
    const char* words;
  };
  const Damage damages[] = {
      {"DROP TABLE Settings", noData, "Settings"},
      {"DROP TABLE PROJECTS", noData, "PROJECTS"},
      {"DROP TABLE TASKS", noTasks, "TASKS"},
      {"ALTER TABLE TASKS DROP COLUMN tskNotes", noTasks, "tskNotes"},
      {setting("D5Start", "early"), {"loadMySettings 13"}, "the setting D5Start holds \"early\" (13)"},
      {"UPDATE Settings SET SetSettingValue = 'many' WHERE SetSettingSection = 'Points'",
       {"loadMySettings 13"},
       " holds \"many\" (13)"},
      {setting("meWidth", "wide"), {"loadMySettings 13"}, "meWidth holds \"wide\" (13)"},
      {setting("OutTaskSetting", "2 or 3"), {"loadMySettings 13"}, "OutTaskSetting holds \"2 or 3\" (13)"},
      {"UPDATE Settings SET SetSettingValue = Null WHERE SetSettingName = 'DDSep'",
       {"loadMySettings 94"},
       "DDSep holds Null (94)"},
      {"INSERT INTO Settings (SetSettingSection, SetSettingName, SetSettingValue, setSettingDisplayOrd) "
       "VALUES ('Importance Level', 'Importance5', 'Extreme', 5)",
       {"loadMySettings 9"},
       "(9)"},
      {"UPDATE TASKS SET tskDesc = Null", {"GetTarnelTasks 94"}, "(94)"},
      {"UPDATE TASKS SET tskTimeNeeded = Null", {"GetTarnelTasks 94"}, "(94)"},
      {"UPDATE TASKS SET tskImp = 7", {"GetTarnelTasks 9"}, "(9)"}};
  for (const Damage& damage : damages) {
    run.home.write("tasks.db", sound);
    change(damage.statement);
    const std::string before = wholeDatabase();
    expectFailure(damage.statement, damage.reports, damage.words);
    EXPECT_EQ(wholeDatabase(), before) << damage.statement;
  }
}

}  // namespace
}  // namespace tarnel::test

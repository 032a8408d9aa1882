#pragma once

#include "NoOutlook.h"

namespace tarnel::test {

// An Outlook that can be logged on to, unless it is `outOfReach`, and holds no folders.
class ReachableOutlook : public NoOutlook {
 public:
  bool outOfReach = false;

  std::shared_ptr<outlook::Application> activeApplication() override { return createApplication(); }
  std::shared_ptr<outlook::Application> createApplication() override {
    return outOfReach ? NoOutlook::createApplication() : std::make_shared<Program>();
  }

 private:
  struct Space : outlook::NameSpace {
    void Logon(const std::optional<std::string>& /*profile*/, bool /*showDialog*/) override {}
    std::shared_ptr<outlook::Folder> GetDefaultFolder(outlook::DefaultFolder /*folder*/) override { return {}; }
    std::shared_ptr<outlook::Item> GetItemFromID(std::string_view /*entryId*/, std::string_view /*storeId*/) override {
      return {};
    }
  };
  struct Program : outlook::Application {
    std::shared_ptr<outlook::NameSpace> GetNamespace(std::string_view /*type*/) override {
      return std::make_shared<Space>();
    }
    std::shared_ptr<outlook::NameSpace> Session() override { return {}; }
    std::shared_ptr<outlook::Item> CreateItem(outlook::ItemType /*type*/) override { return {}; }
  };
};

}  // namespace tarnel::test

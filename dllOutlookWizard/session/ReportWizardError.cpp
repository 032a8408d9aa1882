#include "ReportWizardError.h"

#include <algorithm>
#include <vector>

#include "Form.h"
#include "Platform.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

void unloadIgnoringFailures(Form& form) {
  try {
    form.unload();
  } catch (...) {
    // The first failure has been told; what follows from it on the way out is not.
  }
}

// An unloading form may take others, and itself, out of the list of open forms.
template <class Wanted>
void unloadAll(Wanted wanted) {
  for (Form* form : openForms()) {
    const std::vector<Form*> left = openForms();
    if (std::find(left.begin(), left.end(), form) != left.end() && wanted(*form)) unloadIgnoringFailures(*form);
  }
}

}  // namespace

void ReportWizardError(const Module& module, std::string_view procedure, const std::string& description,
                       std::int32_t number, std::int32_t lineMark) {
  platform().errorReport.report({std::string(module.project), std::string(module.name), std::string(procedure),
                                 description, number, lineMark,
                                 profileIsChosen() ? session().theOutlookProfile : std::string()});
  unloadAll([](const Form& form) { return form.Name() == "frmOutWiz"; });
  unloadAll([](const Form&) { return true; });
}

}  // namespace tarnel

#include "RunningProcedure.h"

#include <utility>

#include "Form.h"
#include "Platform.h"

namespace tarnel {
namespace {

// The procedures that run inside one another, since the innermost modal form was shown.
thread_local int running = 0;

class ModalLevel {
 public:
  ModalLevel() : outside_(std::exchange(running, 0)) {}
  ~ModalLevel() { running = outside_; }
  ModalLevel(const ModalLevel&) = delete;
  ModalLevel& operator=(const ModalLevel&) = delete;

 private:
  int outside_;
};

}  // namespace

RunningProcedure::RunningProcedure() { ++running; }

RunningProcedure::~RunningProcedure() {
  if (--running == 0 && platformIsInstalled()) platform().database.rest();
}

void runModal(Form& form) {
  const ModalLevel level;
  form.showModal(platform().desktop);
}

}  // namespace tarnel

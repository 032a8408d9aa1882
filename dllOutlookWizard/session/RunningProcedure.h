#pragma once

namespace tarnel {

class Form;

// Held by each procedure while it runs. When the outermost of what the user or the host asked for ends, a command is
// over, and the database rests: all that was written is in its file, also while a form keeps records open.
class RunningProcedure {
 public:
  RunningProcedure();
  ~RunningProcedure();
  RunningProcedure(const RunningProcedure&) = delete;
  RunningProcedure& operator=(const RunningProcedure&) = delete;
};

// Shows the form modally. What its user does are commands of their own, though the caller is still running.
void runModal(Form& form);

}  // namespace tarnel

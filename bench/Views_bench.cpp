#include <benchmark/benchmark.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>
#include <cstdlib>

#include "BenchTasks.h"
#include "Comparison.h"
#include "FormWindow.h"
#include "QtApplication.h"
#include "WizardSides.h"
#include "ctMDay.h"

namespace tarnel::bench {
namespace {

// A window with one control in it.
class ShownControl {
 public:
  explicit ShownControl(Control& control) : form_("frmBench", "Bench"), window_(prepared(control), views_, nullptr) {
    window_.present();
    QApplication::processEvents();
  }

  QAbstractScrollArea& view(Control& control) { return dynamic_cast<QAbstractScrollArea&>(*window_.view(control)); }

 private:
  struct BenchForm : Form {
    using Form::Form;
    void hold(Control& control) { addControl(control); }
  };

  Form& prepared(Control& control) {
    form_.Move(0, 0, 9100, 9600);
    form_.hold(control);
    control.Move(0, 0, 9000, 9000);
    form_.load();
    return form_;
  }

  BenchForm form_;
  qt::ViewFactory views_;
  qt::FormWindow window_;
};

void fill(TaskLists& lists) {
  if (!lists.GetTarnelTasks("D00", "T00", lists.tarnelList)) std::abort();
}

// What a change of the pick costs in the window, the painting included, beside the model's fill alone.
void pickChanges(benchmark::State& state) {
  BenchTasks& tasks = BenchTasks::of(state.range(0));
  WizardSides wizard(tasks);
  fill(wizard.lists);
  Comparison comparison(state, Comparison::Time::cpu, 1.5);
  for (auto _ : state) {
    comparison.baseline([&] { fill(wizard.lists); });
    ShownControl shown(wizard.lists.tarnelList);
    comparison.measured([&] {
      fill(wizard.lists);
      QApplication::processEvents();
    });
  }
}
BENCHMARK(pickChanges)->Arg(10000)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);

constexpr std::int32_t day = 46345;

void prepare(ctMDay& schedule, std::int64_t appointments) {
  schedule.setShowDate({static_cast<double>(day)});
  // Half an hour each, a minute apart: thirty lie side by side everywhere.
  for (std::int64_t i = 0; i < appointments; ++i) {
    const auto start = static_cast<std::int16_t>(480 + i % 480);
    schedule.AppAdd(start, static_cast<std::int16_t>(start + 30), day, "Call the office about matter", "");
  }
}

void paint(ShownControl& shown, ctMDay& schedule) { shown.view(schedule).viewport()->repaint(); }

// One frame, beside the frame of an empty schedule.
void overlappingAppointmentsPaint(benchmark::State& state) {
  ctMDay empty("ctDaySked", 0), full("ctDaySked", 1);
  prepare(empty, 0);
  prepare(full, state.range(0));
  ShownControl emptyShown(empty), fullShown(full);
  Comparison comparison(state, Comparison::Time::cpu, 10);
  for (auto _ : state) {
    comparison.baseline([&] { paint(emptyShown, empty); });
    comparison.measured([&] { paint(fullShown, full); });
  }
}
BENCHMARK(overlappingAppointmentsPaint)
    ->Arg(200)
    ->Arg(5000)
    ->Iterations(51)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnel::bench

int main(int argc, char** argv) {
  const tarnel::qt::QtApplication application(tarnel::qt::QtApplication::WithoutScreen{}, argc, argv,
                                              tarnel::qt::Colors::light);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}

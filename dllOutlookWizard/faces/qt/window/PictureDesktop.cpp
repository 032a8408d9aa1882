#include "PictureDesktop.h"

#include <QApplication>
#include <QImage>
#include <algorithm>
#include <cctype>
#include <ostream>

#include "Failure.h"
#include "FormWindow.h"
#include "ReportDialog.h"
#include "SftTabs.h"

namespace tarnel::qt {
namespace {

SftTabs* tabsOf(const Form& form) {
  for (Control* control : form.controls())
    if (auto* tabs = dynamic_cast<SftTabs*>(control)) return tabs;
  return nullptr;
}

// Letters and digits of a tab's caption.
std::string fileName(const std::string& caption) {
  std::string name;
  std::ranges::copy_if(caption, std::back_inserter(name), [](unsigned char c) { return std::isalnum(c) != 0; });
  return name;
}

}  // namespace

struct PictureDesktop::Inside {
  ViewFactory views;
};

PictureDesktop::PictureDesktop(std::filesystem::path folder, double scale, std::ostream& told)
    : folder_(std::move(folder)), scale_(scale), told_(told), inside_(std::make_unique<Inside>()) {}

PictureDesktop::~PictureDesktop() = default;

MessageAnswer PictureDesktop::message(const Message& message) {
  told_ << message.title << ": " << message.text << "\n";
  return message.buttons == MessageButtons::ok ? MessageAnswer::ok : MessageAnswer::no;
}

void PictureDesktop::report(const FailureReport& report) { told_ << factsOf(report).toStdString(); }

void PictureDesktop::doEvents() { QApplication::processEvents(); }

void PictureDesktop::runModal(Form& form) {
  FormWindow window(form, inside_->views, nullptr);
  window.present();
  SftTabs* tabs = tabsOf(form);
  if (!tabs) save(window, form.Name());
  for (std::size_t i = 0; tabs && form.Visible() && i < tabs->Count(); ++i) {
    window.act([&] { tabs->switchTo(i); });
    if (form.Visible() && tabs->Current() == i) save(window, form.Name() + "-" + fileName(tabs->Caption(i)));
  }
  window.act([&] { form.unload(); });
  if (const std::exception_ptr failure = window.takeFailure()) std::rethrow_exception(failure);
}

void PictureDesktop::save(FormWindow& window, const std::string& name) {
  doEvents();
  QImage image(window.size() * scale_, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale_);
  window.render(&image);
  std::error_code shownByTheSaving;
  std::filesystem::create_directories(folder_, shownByTheSaving);
  const std::filesystem::path file = folder_ / (name + ".png");
  if (!image.save(QString::fromStdString(file.string())))
    throw Failure(failure::pathAccess,
                  "The picture " + file.string() + " can't be written. Is there room, and may you write there?");
  pictures_.push_back(file);
}

}  // namespace tarnel::qt

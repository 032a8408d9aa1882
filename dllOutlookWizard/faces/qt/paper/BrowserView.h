#pragma once

#include <QTextBrowser>

#include "ViewSite.h"
#include "WebBrowser.h"

namespace tarnel::qt {

// Shows the page of a browser control on white paper, whatever the desktop's colours. Where a link leads is the
// control's to decide; pictures and styles come from the control's folder alone.
class BrowserView : public QTextBrowser {
 public:
  BrowserView(WebBrowser& control, ViewSite& site, QWidget* parent);

  QVariant loadResource(int type, const QUrl& name) override;

 private:
  void showPage();

  WebBrowser& control_;
  std::filesystem::path shown_;
  Connection onNavigated_;
};

}  // namespace tarnel::qt

#include "BrowserView.h"

#include <QScrollBar>

#include "Colors.h"
#include "HtmlPage.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {
constexpr int fontPixels = 14;
constexpr double paperMargin = 18;  // pixels
}  // namespace

BrowserView::BrowserView(WebBrowser& control, ViewSite& site, QWidget* parent)
    : QTextBrowser(parent), control_(control) {
  setOpenLinks(false);
  setPalette(lightPalette());
  QFont reading = formFont();
  reading.setPixelSize(fontPixels);
  document()->setDefaultFont(reading);
  document()->setDocumentMargin(paperMargin);
  connect(this, &QTextBrowser::anchorClicked, this,
          [this, &site](const QUrl& link) { site.act([&] { control_.followLink(link.toEncoded().toStdString()); }); });
  onNavigated_ = control.navigated.connect([this] { showPage(); });
  showPage();
}

QVariant BrowserView::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::StyleSheetResource) return pageStyle(name, control_.folder());
  if (type != QTextDocument::ImageResource) return {};
  QVariant picture = pagePicture(name, control_.folder());
  QImage image = picture.value<QImage>();
  const double share = devicePixelRatioF() / image.devicePixelRatio();
  if (image.isNull() || share >= 1) return picture;
  // The text's own drawing leaves out pixels where a picture is too fine for the screen.
  image = image.scaled(image.size() * share, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  image.setDevicePixelRatio(devicePixelRatioF());
  return image;
}

void BrowserView::showPage() {
  const PageLocation location = control_.location();
  if (location.file.empty()) return;
  if (location.file != shown_) setHtml(decodedHtml(control_.html()));
  shown_ = location.file;
  if (location.anchor.empty())
    verticalScrollBar()->setValue(0);
  else
    scrollToAnchor(text(location.anchor));
}

}  // namespace tarnel::qt

#include "Paper.h"

#include <QAbstractTextDocumentLayout>
#include <QLocale>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "FooterParts.h"
#include "HtmlPage.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {

constexpr double twipsPerInch = 1440;
constexpr double screenDpi = 96;  // what lengths of a page in pixels count in

constexpr int leastMargin = 284;   // twips; half a centimetre, which printers can't print on
constexpr int usualMargin = 1134;  // twips; two centimetres
constexpr int leastText = 2880;    // twips that must be left between two margins

constexpr double textPoints = 10.5;
constexpr int footerPoints = 8;
constexpr int largestFooter = 24;  // points

class PageSource : public QTextDocument {
 public:
  explicit PageSource(const Document& document) : folder_(document.imageFolder) {}

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    if (type == QTextDocument::StyleSheetResource) return pageStyle(name, folder_);
    return type == QTextDocument::ImageResource ? pagePicture(name, folder_) : QVariant();
  }

 private:
  std::filesystem::path folder_;
};

// One document on one device. Lengths are the device's own dots.
class PaperJob {
 public:
  PaperJob(const Document& document, QPagedPaintDevice& device);
  bool paint();

 private:
  double dots(double twips) const { return twips * device_.logicalDpiX() / twipsPerInch; }
  void layOut();
  void sizePictures();
  void keepHeadingsWithTheirText();
  void paintText(QPainter& painter, int page);
  void paintFooter(QPainter& painter, int page) const;

  const Document& document_;
  QPagedPaintDevice& device_;
  PageSource source_;
  QFont footerFont_;
  QRectF text_;
  QRectF footer_;
};

PaperJob::PaperJob(const Document& document, QPagedPaintDevice& device)
    : document_(document), device_(device), source_(document) {
  footerFont_ = QFont(QStringLiteral("sans-serif"));
  if (!document.footerFont.empty()) footerFont_.setFamily(text(document.footerFont));
  const bool usable = document.footerSize > 0 && document.footerSize <= largestFooter;
  footerFont_.setPointSize(usable ? document.footerSize : footerPoints);
}

void PaperJob::layOut() {
  QPageLayout layout = device_.pageLayout();
  layout.setMode(QPageLayout::FullPageMode);
  layout.setMargins({});
  device_.setPageLayout(layout);
  const QRectF paper = device_.pageLayout().fullRectPixels(device_.logicalDpiX());
  const auto twipsOf = [this](double length) {
    return static_cast<int>(length * twipsPerInch / device_.logicalDpiX());
  };
  const PageMargins& asked = document_.margins;
  const EdgePair across = saneMargins(asked.left, asked.right, twipsOf(paper.width()));
  const EdgePair down = saneMargins(asked.top, asked.bottom, twipsOf(paper.height()));
  const QRectF inside = paper.adjusted(dots(across.first), dots(down.first), -dots(across.second), -dots(down.second));
  const double footerHeight = 2.0 * QFontMetricsF(footerFont_, &device_).height();
  text_ = inside.adjusted(0, 0, 0, -footerHeight);
  footer_ = QRectF(inside.left(), text_.bottom(), inside.width(), footerHeight);

  QFont reading(QStringLiteral("sans-serif"));
  reading.setPointSizeF(textPoints);
  source_.setDefaultFont(reading);
  source_.setDocumentMargin(0);
  source_.documentLayout()->setPaintDevice(&device_);
  source_.setHtml(decodedHtml(document_.html));
  sizePictures();
  source_.setPageSize(text_.size());
  keepHeadingsWithTheirText();
}

// A picture wider than the text would be cut; one finer than the page's pixels would be drawn too large.
void PaperJob::sizePictures() {
  const double widest = text_.width() * screenDpi / device_.logicalDpiX();
  struct Place {
    int start;
    int end;
    QTextImageFormat picture;
  };
  std::vector<Place> places;  // setting a size makes the pieces of its block again
  for (QTextBlock block = source_.begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment piece = at.fragment();
      if (!piece.charFormat().isImageFormat()) continue;
      places.push_back({piece.position(), piece.position() + piece.length(), piece.charFormat().toImageFormat()});
    }
  }
  for (auto& [start, end, picture] : places) {
    const QImage image = pagePicture(QUrl(picture.name()), document_.imageFolder).value<QImage>();
    const QSizeF own = image.deviceIndependentSize();
    if (own.isEmpty()) continue;
    const double width = picture.width() > 0 ? picture.width() : own.width();
    const double height = picture.height() > 0 ? picture.height() : own.height() * width / own.width();
    const double share = std::min(widest / width, 1.0);
    picture.setWidth(width * share);
    picture.setHeight(height * share);
    QTextCursor cursor(&source_);
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.setCharFormat(picture);
  }
}

// A heading at the foot of a page goes to the next one, where its text is. Each moved heading moves what is after it,
// so the pages are asked for again each time.
void PaperJob::keepHeadingsWithTheirText() {
  const auto pageOf = [this](const QTextBlock& block, bool wholeFirstLine) {
    const double top = source_.documentLayout()->blockBoundingRect(block).top();  // lays the block out where need be
    const bool measured = wholeFirstLine && block.layout()->lineCount() > 0;
    return static_cast<int>((top + (measured ? block.layout()->lineAt(0).rect().bottom() : 0)) / text_.height());
  };
  for (QTextBlock block = source_.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || !block.next().isValid()) continue;
    if (pageOf(block, false) == pageOf(block.next(), true)) continue;
    QTextBlockFormat onNextPage;
    onNextPage.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).mergeBlockFormat(onNextPage);
  }
  // Laid out from the middle on, a text may be drawn without its last lines.
  source_.markContentsDirty(0, source_.characterCount());
}

bool PaperJob::paint() {
  layOut();
  QPainter painter;
  if (!painter.begin(&device_)) return false;
  const int pages = source_.pageCount();
  for (int page = 1; page <= pages; ++page) {
    if (page > 1 && !device_.newPage()) return false;
    paintText(painter, page);
    paintFooter(painter, page);
    if (document_.progress) document_.progress(page, pages);
  }
  return painter.end();
}

void PaperJob::paintText(QPainter& painter, int page) {
  const double above = (page - 1) * text_.height();
  painter.save();
  painter.translate(text_.left(), text_.top() - above);
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = QRectF(0, above, text_.width(), text_.height());
  context.palette = QPalette(Qt::white);
  context.palette.setColor(QPalette::Text, Qt::black);
  painter.setClipRect(context.clip);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  source_.documentLayout()->draw(&painter, context);
  painter.restore();
}

void PaperJob::paintFooter(QPainter& painter, int page) const {
  const FooterParts parts = footerParts(document_.footer, page);
  painter.save();
  painter.setFont(footerFont_);
  const QFontMetricsF metrics(footerFont_, &device_);
  const double line = footer_.top() + 0.55 * metrics.height();
  if (parts.rule) {
    painter.setPen(QPen(Qt::darkGray, dots(10)));  // half a point
    painter.drawLine(QPointF(footer_.left(), line), QPointF(footer_.right(), line));
  }
  painter.setPen(Qt::black);
  const QRectF place(footer_.left(), footer_.bottom() - metrics.height(), footer_.width(), metrics.height());
  const QString right = metrics.elidedText(oneLine(parts.right), Qt::ElideRight, place.width());
  const double leftRoom = place.width() - metrics.horizontalAdvance(right + QStringLiteral("  "));
  painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom,
                   metrics.elidedText(oneLine(parts.left), Qt::ElideRight, std::max(leftRoom, 0.0)));
  painter.drawText(place, Qt::AlignRight | Qt::AlignBottom, right);
  painter.restore();
}

}  // namespace

EdgePair saneMargins(int first, int second, int length) {
  const EdgePair printable{std::max(first, leastMargin), std::max(second, leastMargin)};
  // Either may be as large as numbers go: their sum must not be asked for.
  if (printable.first <= length - leastText && printable.second <= length - leastText - printable.first)
    return printable;
  return {usualMargin, usualMargin};
}

bool paintOnPaper(const Document& document, QPagedPaintDevice& device) { return PaperJob(document, device).paint(); }

QPageSize usualPaper() {
  const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

}  // namespace tarnel::qt

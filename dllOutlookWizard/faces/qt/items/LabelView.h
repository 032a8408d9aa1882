#pragma once

#include <QLabel>

#include "Label.h"

namespace tarnel::qt {

// A label in one of its looks. Text that has no room is drawn smaller, then cut; the tool tip has all of it.
class LabelView : public QLabel {
 public:
  LabelView(Label& control, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void captionChanged();
  int textFlags() const;
  QRect textRect() const;
  QFont fittingFont() const;
  bool fits(const QFont& font) const;

  Label& control_;
  Connection onCaption_;
};

}  // namespace tarnel::qt

#pragma once

#include <QWidget>
#include <functional>
#include <typeindex>
#include <unordered_map>

#include "Control.h"
#include "ViewSite.h"

namespace tarnel::qt {

// Which view shows which kind of control.
class ViewFactory {
 public:
  // With the views of this room.
  ViewFactory();

  // `maker(control, site, parent)` gives the view of a control of exactly this kind; it belongs to its parent.
  template <class Kind, class Maker>
  void add(Maker maker) {
    makers_[typeid(Kind)] = [maker](Control& control, ViewSite& site, QWidget* parent) -> QWidget* {
      return maker(static_cast<Kind&>(control), site, parent);
    };
  }

  // None for a kind that has nothing to show or that nobody added.
  QWidget* make(Control& control, ViewSite& site, QWidget* parent) const;

 private:
  std::unordered_map<std::type_index, std::function<QWidget*(Control&, ViewSite&, QWidget*)>> makers_;
};

}  // namespace tarnel::qt

#pragma once

class QWidget;

namespace vemo {

// Translates the captions a dialog carries as data, on load. Each control says by its dynamic
// property "Tag" what of it passes the language service:
//   "x"    its caption (the text of a button or label, the title of a group box or menu)
//   "ttt"  its tool tip
//   "xttt" its caption, then its tool tip
//   "tab"  the text of each tab of a tab widget
// Controls without such a property are passed over. Actions count as controls, as menu items do.
void FormÜbersetzen(QWidget* form);

} // namespace vemo

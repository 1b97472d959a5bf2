#include "language/FormUebersetzen.h"

#include "core/ModulState.h"

#include <QTabWidget>
#include <QWidget>

namespace vemo {

namespace {

// The property that holds the caption of each kind of control. A text field's content is no caption.
struct Beschriftung {
    const char* klasse;
    const char* eigenschaft;
};
constexpr Beschriftung beschriftungen[] = {
    {"QAbstractButton", "text"}, {"QLabel", "text"},  {"QGroupBox", "title"},
    {"QMenu", "title"},          {"QAction", "text"},
};

void eigenschaftÜbersetzen(QObject& o, const char* eigenschaft) {
    o.setProperty(eigenschaft, xText(o.property(eigenschaft).toString()));
}

void beschriftungÜbersetzen(QObject& o) {
    for (const Beschriftung& b : beschriftungen) {
        if (o.inherits(b.klasse)) {
            eigenschaftÜbersetzen(o, b.eigenschaft);
            return;
        }
    }
}

void tooltipÜbersetzen(QObject& o) {
    if (o.isWidgetType() || o.inherits("QAction"))
        eigenschaftÜbersetzen(o, "toolTip");
}

void reiterÜbersetzen(QObject& o) {
    auto* reiter = qobject_cast<QTabWidget*>(&o);
    if (!reiter)
        return;
    for (int i = 0; i < reiter->count(); ++i)
        reiter->setTabText(i, xText(reiter->tabText(i)));
}

void steuerelementÜbersetzen(QObject& o) {
    const QString tag = o.property("Tag").toString();
    if (tag == "x") {
        beschriftungÜbersetzen(o);
    } else if (tag == "ttt") {
        tooltipÜbersetzen(o);
    } else if (tag == "xttt") {
        beschriftungÜbersetzen(o);
        tooltipÜbersetzen(o);
    } else if (tag == "tab") {
        reiterÜbersetzen(o);
    }
}

} // namespace

void FormÜbersetzen(QWidget* form) {
    if (!form)
        return;
    const QList<QObject*> steuerelemente = form->findChildren<QObject*>();
    for (QObject* o : steuerelemente)
        steuerelementÜbersetzen(*o);
}

} // namespace vemo

#pragma once

#include <QString>

namespace vemo {

// Translation of the component's texts. The German text is the key.
class Sprachen {
public:
    QString Sprache() const { return m_sprache; }
    void setSprache(const QString& name) { m_sprache = name; }

    QString xText(const QString& text, const QString& sprache = {});

private:
    QString m_sprache = "Deutsch";
};

} // namespace vemo

#include "support/Hilfsprozess.h"

#include <QCoreApplication>
#include <map>

namespace vemo::test {
namespace {

std::map<QString, Hilfsprozess::Ablauf>& rollen() {
    static std::map<QString, Hilfsprozess::Ablauf> r;
    return r;
}

const QString Kennung = "--hilfsprozess=";

} // namespace

Hilfsprozess::Hilfsprozess(const QString& rolle, Ablauf ablauf) {
    rollen()[rolle] = std::move(ablauf);
}

std::optional<int> Hilfsprozess::ausführen(const QStringList& argumente) {
    if (argumente.size() < 2 || !argumente[1].startsWith(Kennung))
        return std::nullopt;
    const auto it = rollen().find(argumente[1].mid(Kennung.size()));
    if (it == rollen().end())
        return 2;
    return it->second(argumente.mid(2));
}

void Hilfsprozess::starten(QProcess& prozess, const QString& rolle, const QStringList& argumente) {
    prozess.start(QCoreApplication::applicationFilePath(), QStringList{Kennung + rolle} + argumente);
}

} // namespace vemo::test

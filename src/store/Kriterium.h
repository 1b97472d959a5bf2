#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <memory>

namespace vemo {

// A criteria text of FindFirst, such as "MessungID = 5", "[1] = 'Version'" or "Code ='003'":
// comparisons of a field with a literal, joined by And, Or, Not and brackets. Text compares
// without regard to case.
class Kriterium {
public:
    // Looks a field up by name; a name of digits only may name a column by its position.
    using Feldzugriff = std::function<QVariant(const QString& name)>;

    explicit Kriterium(const QString& text); // raises 3075 on a malformed text
    ~Kriterium();
    Kriterium(Kriterium&&) noexcept;

    bool erfüllt(const Feldzugriff& feld) const;

    struct Knoten;

private:
    std::unique_ptr<Knoten> m_wurzel;
};

} // namespace vemo

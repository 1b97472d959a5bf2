#pragma once

#include <QObject>
#include <memory>

namespace vemo {

// What a reception on the console listens to beside the line: Ctrl-C, which is to end the transfer
// as the dialog's abort button does, never by killing the program mid-write, and Enter on standard
// input. Both come as signals through the event loop. While a watch lives, Ctrl-C no longer ends
// the program; afterwards it does again.
class Konsolenwache : public QObject {
    Q_OBJECT
public:
    explicit Konsolenwache(QObject* parent = nullptr);
    ~Konsolenwache() override;

signals:
    void unterbrochen();
    void zeileEingegeben();

private:
    struct Intern;
    std::unique_ptr<Intern> m_intern;
};

} // namespace vemo

#pragma once

#include <QList>
#include <QString>

namespace vemo {

// The platform's services for starting the application that owns a file, and for reading text values
// of the platform's registry. Keys opened here are remembered with their full path, so that an open
// key can be asked for it.
class Tools {
public:
    // The root keys of the registry, by handle.
    static constexpr quint32 HkeyClassesRoot = 0x80000000;
    static constexpr quint32 HkeyCurrentUser = 0x80000001;
    static constexpr quint32 HkeyLocalMachine = 0x80000002;
    static constexpr quint32 HkeyUsers = 0x80000003;

    // Opens the file with the application the desktop gives it. A relative file name is taken in
    // the directory. The desktop opens a document as it is, so parameters have no effect; the owner
    // window is not needed. True unless an error occurred: whether an application came up is not
    // known.
    static bool AnwendungMitDateiStarten(qint32 fenster, const QString& datei, const QString& parameter,
                                         const QString& verzeichnis);

    // What QSettings opens for a root key ("HKEY_CURRENT_USER"): on Windows the registry's root key
    // itself; elsewhere, where there is no registry, the ini-style file
    // vemotrix/registry/HKEY_CURRENT_USER.conf in the user's config folder, whose sections are the
    // key's subkeys and whose lines its values, read as they stand (see Registrydatei.h).
    static QString registryOrt(const QString& wurzel);

    // Opens a subkey of an open key and gives its handle. False when the key cannot be had.
    bool SchlüsselÖffnen(quint32 eltern, const QString& unterschlüssel, quint32& handle);
    // The full path of an open key: a root key's name, else the path noted when it was opened;
    // empty for a handle not known.
    QString SchlüsselPfad(quint32 handle) const;
    // The text value of an open key, up to its first character 0. False, with an empty text, when
    // the value cannot be had or is no text.
    bool WertLesen(quint32 handle, const QString& wertName, QString& text) const;

private:
    struct OffenerSchlüssel {
        quint32 handle;
        QString pfad;
    };
    QList<OffenerSchlüssel> m_offeneSchlüssel; // added to, never removed from
};

} // namespace vemo

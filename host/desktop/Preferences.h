// What the program remembers from one run to the next.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace quorvia::host {

class Preferences {
public:
    /// Of the last file selection; the user's home folder at first, or once that folder is gone.
    QString folder() const;
    void setFolderOf(const QString& file);

    QByteArray windowGeometry() const;
    void setWindowGeometry(const QByteArray& geometry);

private:
    QSettings settings_{QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quorvia"),
                        QStringLiteral("quorhost-desktop")};
};

} // namespace quorvia::host

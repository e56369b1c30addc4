// What the program remembers from one run to the next.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

#include "desktop/files/ImportList.h"

namespace quorvia::host {

class Preferences {
public:
    /// Of the files that were imported or picked last; the user's home folder at first, or once
    /// that folder is gone.
    QString folder() const;
    void setFolderOf(const QString& file);
    /// Where pictures and views go; at first the folder of the files.
    QString resultFolder() const;
    void setResultFolderOf(const QString& file);

    /// The last one first.
    std::vector<ImportList> recentImports() const;
    void setRecentImports(const std::vector<ImportList>& sets);

    QByteArray windowGeometry() const;
    void setWindowGeometry(const QByteArray& geometry);

private:
    mutable QSettings settings_{// reading a list moves in it
                                QSettings::IniFormat, QSettings::UserScope,
                                QStringLiteral("Quorvia"), QStringLiteral("quorhost-desktop")};
};

} // namespace quorvia::host

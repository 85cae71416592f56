#include "Doctor/Reasons.h"

#include <QRegularExpression>
#include <QVector>

namespace Quillmont::Utility::Doctor {

QString Reasons::translated(const QString &reason)
{
    static const QRegularExpression place(QStringLiteral("^line (\\d+), column (\\d+): (.*)$"),
                                          QRegularExpression::DotMatchesEverythingOption);
    const auto match = place.match(reason);
    if (!match.hasMatch())
        return translatedAlone(reason);
    return tr("line %1, column %2: %3")
        .arg(match.captured(1), match.captured(2), translatedAlone(match.captured(3)));
}

QString Reasons::translatedAlone(const QString &reason)
{
    static const QVector<const char *> all{
        QT_TR_NOOP("X-Plane's own list"),
        QT_TR_NOOP("FlightGear's launcher"),
        QT_TR_NOOP("a well-known folder"),
        QT_TR_NOOP("UserCfg.opt in Steam's Proton prefix"),
        QT_TR_NOOP("chosen by hand"),
        QT_TR_NOOP("the catalogue's file"),
        QT_TR_NOOP("the catalogue's folder"),
        QT_TR_NOOP("the catalogue's location"),
        QT_TR_NOOP("no such folder"),
        QT_TR_NOOP("no such file"),
        QT_TR_NOOP("no registry on this system"),
        QT_TR_NOOP("looked for on Windows only"),
        QT_TR_NOOP("no such \"location\""),
        QT_TR_NOOP("another one was chosen by hand"),
        QT_TR_NOOP("not an absolute path"),
        QT_TR_NOOP("not a folder"),
        QT_TR_NOOP("no permission to look inside"),
        QT_TR_NOOP("no file \"version\" that begins with a version number"),
        QT_TR_NOOP("no defaults.xml or preferences.xml"),
        QT_TR_NOOP("no InstalledPackagesPath in it"),
        QT_TR_NOOP("its InstalledPackagesPath does not begin with a drive"),
        QT_TR_NOOP("no Community, Official/Steam or Official/OneStore"),
        QT_TR_NOOP("no Community, Official2024 or StreamedPackages"),
        QT_TR_NOOP("cannot be read"),
        QT_TR_NOOP("too large"),
        QT_TR_NOOP("too much to read altogether"),
        QT_TR_NOOP("no fsx.exe"),
        QT_TR_NOOP("no SimObjects"),
        QT_TR_NOOP("no scenery"),
        QT_TR_NOOP("no aircraft"),
        QT_TR_NOOP("no main.mcf or tm.log"),
        QT_TR_NOOP("it has no Proton prefix"),
        QT_TR_NOOP("no list of libraries"),
        QT_TR_NOOP("cut off, or not in Steam's text format"),
        QT_TR_NOOP("uninstalled (StateFlags %1)"),
        QT_TR_NOOP("not fully installed (StateFlags %1)"),
        QT_TR_NOOP("no AppState in it"),
        QT_TR_NOOP("it is about another game"),
        QT_TR_NOOP("installdir is not a plain name"),
        QT_TR_NOOP("no Resources/plugins"),
        QT_TR_NOOP("no X-Plane executable"),
        QT_TR_NOOP("it is X-Plane %1"),
        QT_TR_NOOP("it is taken as %1"),
        QT_TR_NOOP("Second byte-order mark."),
        QT_TR_NOOP("Invalid entity name."),
        QT_TR_NOOP("Invalid processing instruction name."),
        QT_TR_NOOP("Invalid XML declaration."),
        QT_TR_NOOP("Invalid character reference."),
        QT_TR_NOOP("Invalid element name."),
        QT_TR_NOOP("Invalid attribute name."),
        QT_TR_NOOP("Invalid character in the document type declaration."),
        QT_TR_NOOP("Entities grow to too much text."),
        QT_TR_NOOP("No XML has this character."),
        QT_TR_NOOP("The root element is not where it should be."),
        QT_TR_NOOP("The entry to change comes out of an entity."),
        QT_TR_NOOP("The element to remove comes out of an entity."),
        QT_TR_NOOP("Undecodable bytes would be read otherwise."),
        QT_TR_NOOP("A value is no text that XML can hold."),
        QT_TR_NOOP("The element to change comes out of an entity."),
        QT_TR_NOOP("The file's encoding cannot hold an end tag."),
        QT_TR_NOOP("A name or a value is none that XML can hold."),
        QT_TR_NOOP("The file's encoding cannot hold a name."),
        QT_TR_NOOP("not a regular file"),
        QT_TR_NOOP("too big"),
        QT_TR_NOOP("its name is not valid text"),
    };
    for (const char *const text : all) {
        const QStringList around = QString::fromLatin1(text).split(QStringLiteral("%1"));
        if (reason == QLatin1String(text))
            return tr(text);
        if (around.size() == 2 && reason.startsWith(around.first())
            && reason.endsWith(around.last()))
            return tr(text).arg(reason.mid(around.first().size()).chopped(around.last().size()));
    }
    return reason;
}

} // namespace Quillmont::Utility::Doctor

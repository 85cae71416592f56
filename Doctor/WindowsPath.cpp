#include "Doctor/WindowsPath.h"

#include "Library/Files/LetterCase.h"

#include <QFileInfo>

using Quillmont::Library::Files::LetterCase;

namespace Quillmont::Utility::Doctor {

bool WindowsPath::mayExist(const QString &path) const
{
    QString slashed = path;
    slashed.replace(u'\\', u'/').remove(u'"');
    const auto exists = [](const QString &folder, const QString &relative) {
        return QFileInfo::exists(folder + relative)
            || !LetterCase::files(folder, relative).isEmpty();
    };
    const bool hasDrive = slashed.size() > 2 && slashed.at(1) == u':';
    if (slashed.contains(u'%') || slashed.startsWith(QLatin1String("//")))
        return true;
    if (!hasDrive)
        return slashed.startsWith(u'/') ? QFileInfo::exists(slashed) : exists(m_folder, slashed);
    const QString drive = m_prefix + QStringLiteral("/dosdevices/") + slashed.left(2).toLower();
    const bool isC = slashed.at(0).toLower() == u'c';
    if (m_prefix.isEmpty() || (!isC && !QFileInfo::exists(drive)))
        return true;
    return exists(isC ? m_prefix + QStringLiteral("/drive_c/") : drive + u'/', slashed.mid(3));
}

} // namespace Quillmont::Utility::Doctor

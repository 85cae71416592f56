#include "SimDetect/Steam/SteamLibraryList.h"

#include "SimDetect/RegularFile.h"
#include "SimDetect/Steam/TextFormat.h"

#include <algorithm>
#include <set>
#include <string>

namespace Quillmont::SimDetect {

namespace {

// More than anybody has drives; each one costs disk access.
constexpr int maxLibraries = 256;

bool isNumber(const std::string &key)
{
    return !key.empty() && std::all_of(key.begin(), key.end(), [](char character) {
        return character >= '0' && character <= '9';
    });
}

// The first "path" in the block that @p text has just entered; leaves the block.
QString readPath(TextFormat &text)
{
    QString path;
    bool isKnown = false;
    while (text.next()) {
        if (!isKnown && text.isKey("path")) {
            isKnown = true;
            path = text.value();
        }
        text.skip();
    }
    return path;
}

} // namespace

SteamLibraryList::SteamLibraryList(const QString &path, qint64 &allowance)
{
    const RegularFile file(path, allowance, TextFormat::maxFileSize);
    m_problem = file.problem();
    if (m_problem.isEmpty())
        parse(file.content());
}

void SteamLibraryList::parse(const QByteArray &content)
{
    TextFormat text(content);
    std::set<std::string> seen;
    if (text.enter("libraryfolders")) {
        while (text.next()) {
            if (!isNumber(text.key()) || seen.count(text.key()) > 0
                || seen.size() >= maxLibraries) {
                text.skip();
                continue;
            }
            seen.insert(text.key());
            m_folders.append(text.isBlock() ? readPath(text) : text.value());
        }
    } else {
        m_problem = QStringLiteral("no list of libraries");
    }
    if (text.isBroken()) {
        m_problem = QStringLiteral("cut off, or not in Steam's text format");
        m_folders.clear();
    }
}

} // namespace Quillmont::SimDetect

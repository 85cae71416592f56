#include "tests/Library/Helpers/XmlEditTest.h"

#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "tests/support/Files.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/stat.h>

namespace Tests {

namespace {

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Library::Models::XmlInsertionModel;

QJsonObject json(const QByteArray &config)
{
    const QJsonDocument document = QJsonDocument::fromJson(config);
    if (!document.isObject())
        qFatal("not an object: %s", config.constData());
    return document.object();
}

} // namespace

const char *const addon = R"({"parent": "Addon", "values": [
    {"key": "Name", "value": "Tide"}, {"key": "Path", "value": "tide.exe"}]})";

bool XmlEditTest::insertInto(const QByteArray &bytes, const QByteArray &config)
{
    writeFile(path(), bytes);
    return insert(config);
}

bool XmlEditTest::removeFrom(const QByteArray &bytes, const QByteArray &config)
{
    writeFile(path(), bytes);
    return remove(config);
}

bool XmlEditTest::insert(const QByteArray &config)
{
    return insertAt(path(), config);
}

bool XmlEditTest::remove(const QByteArray &config)
{
    return removeAt(path(), config);
}

bool XmlEditTest::insertAt(const QString &path, const QByteArray &config)
{
    XmlInsertionModel model(nullptr, json(config));
    return XmlHelper(nullptr, path).insertValues(&model);
}

bool XmlEditTest::removeAt(const QString &path, const QByteArray &config)
{
    XmlInsertionModel model(nullptr, json(config));
    return XmlHelper(nullptr, path).removeConfig(&model);
}

QByteArray XmlEditTest::content() const
{
    return readFile(path());
}

QByteArray XmlEditTest::identity() const
{
    struct stat now = {};
    stat(QFile::encodeName(path()).constData(), &now);
    // A replaced file has another inode number, even if time stamps are coarse.
    return QByteArray::number(quint64(now.st_ino)) + ' ' + QByteArray::number(qint64(now.st_mtime));
}

} // namespace Tests

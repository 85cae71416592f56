#include "Controllers/ConfigurationController.h"
#include "Controllers/SettingsFile.h"
#include "fuzz/Application.h"
#include "fuzz/Expect.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSettings>

#include <cstddef>
#include <cstdint>

using Fuzz::expect;
using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Controllers::SettingsFile;

namespace {

using Settings = QMap<QString, QVariant>;

QString keyOf(const QString &name)
{
    return QStringLiteral("flightsim/") + QString(name).replace(u' ', u'_');
}

// Slashes separate a key into levels; several in a row count as one.
QString levels(const QString &key)
{
    return key.split(u'/', Qt::SkipEmptyParts).join(u'/');
}

// A settings file and the single object that works on it, for the whole run.
class Store
{
public:
    Store();

    void setFile(const QByteArray &bytes) const;
    QByteArray file() const;

    bool isSound() const { return SettingsFile(path()).canWrite(); }

    Settings content() const;

    ConfigurationController *settings = nullptr;

private:
    QString path() const
    {
        return m_sandbox.dataRoot() + QStringLiteral("Quillmont/Vellum/.settings");
    }

    Tests::Sandbox m_sandbox;
};

Store::Store()
{
    Fuzz::makeApplication();
    settings = ConfigurationController::instance();
    QDir().mkpath(QFileInfo(path()).path());
}

void Store::setFile(const QByteArray &bytes) const
{
    QFile file(path());
    expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
           "the settings can be prepared");
}

QByteArray Store::file() const
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Settings Store::content() const
{
    const QSettings file(path(), QSettings::IniFormat);
    Settings content;
    const QStringList keys = file.allKeys();
    // A line without a name creates a key that cannot be requested.
    for (const QString &key : keys) {
        if (key == levels(key))
            content.insert(key, file.value(key));
    }
    return content;
}

Store &store()
{
    static Store store;
    return store;
}

void save(const QString &name, const QString &folder, Settings *expected)
{
    const QString key = keyOf(name);
    store().settings->saveSettings(key, folder);
    expected->insert(levels(key), folder);
    expect(store().settings->getSettings(key, QString()).toString() == folder,
           "what is saved reads back");
}

void remove(const QString &name, Settings *expected)
{
    const QString key = keyOf(name);
    store().settings->removeSettings(key);
    const QStringList keys = expected->keys();
    for (const QString &one : keys) {
        if (one == levels(key) || one.startsWith(levels(key) + u'/'))
            expected->remove(one);
    }
    expect(!store().settings->getSettings(key).isValid(), "what is removed is gone");
}

// A file that is not safe for Qt is not read with Qt here either.
void leaveAlone(const QString &name)
{
    const QByteArray before = store().file();
    store().settings->getSettings(keyOf(name));
    store().settings->saveSettings(keyOf(name), QStringLiteral("/a"));
    store().settings->removeSettings(keyOf(name));
    expect(store().file() == before, "what would be lost is left alone");
}

} // namespace

// The input is a settings file up to a line "----", and then one operation per line: "NAME=FOLDER"
// saves and "NAME" removes. A vertical tab means a line end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const int border = bytes.indexOf("----\n");
    store().setFile(border < 0 ? QByteArray() : bytes.left(border));
    const bool isSound = store().isSound();
    Settings expected = isSound ? store().content() : Settings();
    const QList<QByteArray> lines = bytes.mid(border < 0 ? 0 : border + 5).split('\n');
    for (int i = 0; i < qMin(lines.size(), 8); ++i) {
        const QString work = QString::fromUtf8(lines.at(i)).replace(u'\v', u'\n');
        const int sign = work.indexOf(u'=');
        if (!isSound)
            leaveAlone(work);
        else if (sign < 0)
            remove(work, &expected);
        else
            save(work.left(sign), work.mid(sign + 1), &expected);
        expect(!isSound || store().content() == expected, "all other settings stay");
    }
    return 0;
}

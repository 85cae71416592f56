#include "Library/Models/XmlInsertionModel.h"
#include "Models/FileOperation.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimRemoval.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "fuzz/Expect.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

using namespace Quillmont::Utility::Models;
using Fuzz::expect;
using Quillmont::Library::Models::XmlInsertionModel;

// The catalogue's rules stated a second time, based on the JSON.
namespace {

QString textAt(const QJsonObject &json, const char *key)
{
    const QJsonValue value = json[QLatin1String(key)];
    return value.isString() ? value.toString() : QString();
}

int numberAt(const QJsonObject &json, const char *key)
{
    const QJsonValue value = json[QLatin1String(key)];
    const double number = value.isDouble() ? value.toDouble() : 0;
    const bool isInt = std::floor(number) == number && number >= std::numeric_limits<int>::min()
        && number <= std::numeric_limits<int>::max();
    return isInt ? static_cast<int>(number) : 0;
}

bool flagAt(const QJsonObject &json, const char *key, bool otherwise)
{
    const QJsonValue value = json[QLatin1String(key)];
    return value.isBool() ? value == QJsonValue(true) : otherwise;
}

QString slashed(const QString &path)
{
    return path.split(u'\\').join(u'/');
}

bool isFullObject(const QJsonValue &value)
{
    return value.isObject() && !value.toObject().isEmpty();
}

void checkRoot(int root, const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^-?[0-9]{1,9}$"));
    static const QRegularExpression noNumber(QStringLiteral("[^-+0-9\\s]"));
    if (text.isEmpty())
        expect(root == -1, "an entry without a root has the root -1");
    else if (number.match(text).hasMatch())
        expect(text.toDouble() == root, "the root is the number that is written");
    else if (text.size() < 32 && text.contains(noNumber) && text.toUtf8().size() == text.size())
        expect(root == 0, "a root that is not a number is 0");
}

void checkFiles(const QMap<QString, QString> &files, const QJsonArray &written)
{
    QMap<QString, QString> expected;
    for (int i = written.size() - 1; i >= 0; --i) {
        const QJsonObject file = written.at(i).toObject();
        const QString destination = slashed(textAt(file, "destination"));
        if (!expected.contains(destination))
            expected[destination] = slashed(textAt(file, "source"));
    }
    expect(files == expected, "the last source of each destination counts");
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        expect(!it.key().contains(u'\\') && !it->contains(u'\\'), "no backslash stays in files");
}

void checkRemoval(const FlightSimRemoval &removal, const QJsonObject &json)
{
    expect(removal.parent == textAt(json, "parent") && removal.key == textAt(json, "key")
               && removal.value == textAt(json, "value"),
           "a removal has the texts that are written");
    expect(removal.deleteParent == flagAt(json, "delete_parent", false),
           "a removal has the flag that is written");
    const QJsonArray files = json[QLatin1String("files")].toArray();
    expect(removal.files.size() == files.size(), "a removal has each file");
    for (int i = 0; i < files.size(); ++i) {
        const QJsonObject file = files.at(i).toObject();
        expect(removal.files.at(i)->root == textAt(file, "root")
                   && removal.files.at(i)->path == textAt(file, "path"),
               "a removal's files are as they are written, in their order");
    }
}

void checkConfig(const XmlInsertionModel &config, const QJsonObject &json)
{
    expect(config.path == slashed(textAt(json, "path")), "a configuration's path has slashes");
    expect(config.steam == numberAt(json, "steam"), "a game has a whole number");
    bool anyValue = false;
    const QJsonArray values = json[QLatin1String("values")].toArray();
    for (const QJsonValue &value : values)
        anyValue |= !textAt(value.toObject(), "key").isEmpty();
    expect(config.describesEntry() == (anyValue && !textAt(json, "parent").isEmpty()),
           "a configuration with a parent and values describes an entry");
    expect(!config.describesEntry() || !config.key.isEmpty(), "an entry can be recognised");
}

void checkConflict(const FlightSimConflict &conflict, const QJsonObject &json)
{
    expect(conflict.name == textAt(json, "name") && conflict.solution == textAt(json, "solution"),
           "a conflict has the texts that are written");
    expect(conflict.removeOnConflict == flagAt(json, "remove_on_conflict", true)
               && conflict.checkFile == flagAt(json, "check_file", false)
               && conflict.location == numberAt(json, "location"),
           "a conflict has the flags and the number that are written");
}

void checkParts(const FlightSimScan &scan, const QJsonObject &json)
{
    const QJsonValue config = json[QLatin1String("config")];
    const QJsonValue removal = config.toObject()[QLatin1String("remove")];
    const QJsonValue conflict = json[QLatin1String("conflict")];
    const bool readsConflict
        = isFullObject(config) || (json.contains(QLatin1String("config")) && config.isNull());

    expect((scan.config != nullptr) == isFullObject(config), "a full config is read");
    expect((scan.remove != nullptr) == isFullObject(removal), "a full removal is read");
    expect((scan.conflict != nullptr) == (readsConflict && isFullObject(conflict)),
           "a conflict is read beside a full config or a null one");
    if (scan.config)
        checkConfig(*scan.config, config.toObject());
    if (scan.remove)
        checkRemoval(*scan.remove, removal.toObject());
    if (scan.conflict)
        checkConflict(*scan.conflict, conflict.toObject());
    expect(scan.children().size()
               == (scan.config != nullptr) + (scan.remove != nullptr) + (scan.conflict != nullptr),
           "an entry owns its parts, and nothing else");
}

void checkEntry(const QJsonObject &json)
{
    FlightSimScan scan(nullptr, json);
    expect(scan.entry == json, "the whole entry is kept");
    expect(scan.name == textAt(json, "name") && scan.simcode == textAt(json, "simcode")
               && scan.path == textAt(json, "path") && scan.key == textAt(json, "key")
               && scan.target == textAt(json, "target") && scan.extra.isEmpty(),
           "an entry has the texts that are written");
    expect(scan.location == numberAt(json, "location") && scan.type == numberAt(json, "type"),
           "an entry has the whole numbers that are written");
    checkRoot(scan.root, textAt(json, "root"));
    checkFiles(scan.files, json[QLatin1String("files")].toArray());
    checkParts(scan, json);

    auto *mapping = new FlightSimulatorMapping(&scan, {});
    expect(!mapping->isAddonInstalled(), "nothing is installed without a folder");
    mapping->updateFlightSimPath(QStringLiteral("/dev/null"));
    expect(mapping->isAddonInstalled() == scan.files.isEmpty(), "no file is inside a file");
}

} // namespace

// Any catalogue is read as its format specifies, and no part of it is lost or owned twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QJsonArray catalogue = QJsonDocument::fromJson(bytes).array();
    for (const QJsonValue &element : catalogue)
        checkEntry(element.toObject());
    return 0;
}

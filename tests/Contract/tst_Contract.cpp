// These are promises to other programs, which build against these headers, invoke the slot by its
// name, and watch which files are looked up. Nothing here may change only for tidier code.

#include "Controllers/ConfigurationController.h"
#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FileOperation.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimRemoval.h"
#include "Views/ScannerView.h"
#include "Widgets/AddonListItem.h"
#include "Widgets/AddonListItemDelegate.h"
#include "tests/Contract/LookedUpPaths.h"
#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"
#include "tests/support/MetaObject.h"

#include <QMetaEnum>
#include <QMetaMethod>
#include <QTest>

#include <algorithm>
#include <array>
#include <functional>

using namespace Quillmont::Library::Models;
using namespace Quillmont::Utility::Models;
using namespace Tests;

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Views::ScannerView;
using Quillmont::Utility::Widgets::AddonListItem;
using Quillmont::Utility::Widgets::AddonListItemDelegate;

Q_DECLARE_METATYPE(const QMetaObject *)

namespace {

const QMetaObject &controllerMeta = ScanController::staticMetaObject;

QMetaMethod ownMethod(const QMetaObject &meta, int index)
{
    return meta.method(meta.methodOffset() + index);
}

template <typename... Member>
bool areInOrder(const Member &...members)
{
    const std::array<const void *, sizeof...(members)> places{&members...};
    return std::is_sorted(places.begin(), places.end(), std::less<>());
}

} // namespace

class TestContract : public QObject
{
    Q_OBJECT

private slots:

    // "*" means a pointer to a mapping.
    void declaresItsClassesToTheMetaSystem_data()
    {
        QTest::addColumn<const QMetaObject *>("meta");
        QTest::addColumn<const QMetaObject *>("base");
        QTest::addColumn<QString>("members");
        const auto row = [](const char *name,
                            const QMetaObject &meta,
                            const QMetaObject &base = QObject::staticMetaObject,
                            const QString &members = {}) {
            QTest::newRow(name) << &meta << &base << members;
        };
        const QMetaObject &widget = QWidget::staticMetaObject;
        row("Library::Models::XmlConfigModel", XmlConfigModel::staticMetaObject);
        row("Library::Models::XmlInsertionModel",
            XmlInsertionModel::staticMetaObject,
            XmlConfigModel::staticMetaObject);
        row("Library::Helpers::XmlHelper", XmlHelper::staticMetaObject);
        row("Utility::Models::FileOperation", FileOperation::staticMetaObject);
        row("Utility::Models::FlightSimConflict", FlightSimConflict::staticMetaObject);
        row("Utility::Models::FlightSimRemoval", FlightSimRemoval::staticMetaObject);
        row("Utility::Models::FlightSimScan", FlightSimScan::staticMetaObject);
        row("Utility::Models::FlightSimulatorMapping", FlightSimulatorMapping::staticMetaObject);
        row("Utility::Controllers::ConfigurationController",
            ConfigurationController::staticMetaObject);
        row("Utility::ViewControllers::ScanController",
            controllerMeta,
            QObject::staticMetaObject,
            "slot startScan(bool,bool,InstallationMode)|enum InstallationMode"_s);
        row("Utility::Views::ScannerView",
            ScannerView::staticMetaObject,
            widget,
            "signal scanRequested()|signal install(*)|signal uninstall(*)"_s);
        row("Utility::Widgets::AddonListItem",
            AddonListItem::staticMetaObject,
            widget,
            "signal install(*)|signal uninstall(*)|slot browsePath()"_s);
        row("Utility::Widgets::AddonListItemDelegate",
            AddonListItemDelegate::staticMetaObject,
            QStyledItemDelegate::staticMetaObject);
    }

    void declaresItsClassesToTheMetaSystem()
    {
        QFETCH(const QMetaObject *, meta);
        QFETCH(const QMetaObject *, base);
        QCOMPARE(meta->className(), "Quillmont::" + QByteArray(QTest::currentDataTag()));
        QCOMPARE(meta->superClass(), base);
        const QString members = ownMembers(*meta).join(u'|').replace(
            "Quillmont::Utility::Models::FlightSimulatorMapping*"_s, "*"_s);
        QTEST(members, "members");
    }

    void keepsItsMembersInOrder()
    {
        Workshop shop;
        const auto &controller = shop.controller();
        const auto &mapping = *shop.mapping("{}", {});
        const auto &scan = *mapping.scan;
        const FileOperation file(nullptr, {});
        const FlightSimConflict conflict(nullptr, {});
        const FlightSimRemoval removal(nullptr, {});
        const XmlConfigModel config(nullptr, {});
        QVERIFY(areInOrder(file.root, file.path));
        QVERIFY(areInOrder(conflict.removeOnConflict,
                           conflict.checkFile,
                           conflict.name,
                           conflict.solution,
                           conflict.location));
        QVERIFY(areInOrder(
            removal.parent, removal.key, removal.value, removal.deleteParent, removal.files));
        QVERIFY(areInOrder(scan.name, scan.simcode, scan.path, scan.key, scan.location, scan.type));
        QVERIFY(areInOrder(scan.type, scan.extra, scan.entry, scan.files, scan.config, scan.root));
        QVERIFY(areInOrder(scan.root, scan.target, scan.conflict, scan.remove));
        QVERIFY(areInOrder(mapping.scan, mapping.path, mapping.note));
        QVERIFY(areInOrder(config.path, config.element, config.key, config.value));
        QVERIFY(areInOrder(
            controller.m_errorMessage, controller.view, controller.mappings, controller.simPaths));
    }

    void hasASettablePathInTheInsertionModel()
    {
        XmlInsertionModel model(nullptr, {});
        static_cast<XmlConfigModel &>(model).path = "other.xml"_s;
        QCOMPARE(model.path, "other.xml"_s);
    }

    void registersTheMappingPointerForSignals()
    {
        const int id = qMetaTypeId<FlightSimulatorMapping *>();
        const char *const name = "Quillmont::Utility::Models::FlightSimulatorMapping*";
        QCOMPARE(QMetaType::type(name), id);
        QCOMPARE(QMetaType::typeName(id), name);
        QCOMPARE(int(QMetaType::typeFlags(id)),
                 int(QMetaType::WasDeclaredAsMetaType | QMetaType::PointerToQObject
                     | QMetaType::MovableType));
        QCOMPARE(QMetaType::metaObjectForType(id), &FlightSimulatorMapping::staticMetaObject);
        const QMetaMethod install = ownMethod(ScannerView::staticMetaObject, 1);
        QCOMPARE(install.parameterType(0), id);
        QCOMPARE(install.parameterNames(), QList<QByteArray>{"mappingToInstall"});
        QCOMPARE(ownMethod(AddonListItem::staticMetaObject, 0).parameterType(0), id);
        QCOMPARE(ownMethod(AddonListItem::staticMetaObject, 1).parameterType(0), id);
    }

    void numbersTheModes()
    {
        const auto modes = QMetaEnum::fromType<ScanController::InstallationMode>();
        QVERIFY(!modes.isScoped());
        QByteArray text;
        for (int i = 0; i < modes.keyCount(); ++i)
            text += QByteArray::number(modes.value(i)) + ' ' + modes.key(i) + ' ';
        QCOMPARE(text,
                 QByteArray("0 ModeNone 1 ModeInstall 2 ModeUninstall 3 ModeRepair "
                            "4 ModeScanAndInstall "));
    }

    void letsTheScanSlotBeInvokedByName()
    {
        Workshop shop;
        shop.writeCatalogue("[{}]");
        auto &controller = shop.controller();
        const QMetaMethod slot = ownMethod(controllerMeta, 0);
        QCOMPARE(slot.access(), QMetaMethod::Public);
        QCOMPARE(slot.returnType(), int(QMetaType::Void));
        QCOMPARE(slot.parameterNames().join(' '), QByteArray("updateDefault silent mode"));
        QCOMPARE(slot.parameterType(2), qMetaTypeId<ScanController::InstallationMode>());

        using InstallationMode = ScanController::InstallationMode;
        QVERIFY(QMetaObject::invokeMethod(&controller,
                                          "startScan",
                                          Qt::QueuedConnection,
                                          Q_ARG(bool, true),
                                          Q_ARG(bool, false),
                                          Q_ARG(InstallationMode, ScanController::ModeNone)));
        QVERIFY(shop.rowNames().isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(shop.rowNames().size(), 1);
    }

    void hasEmptyFunctionsForOtherPlatforms()
    {
        Workshop shop;
        auto *mapping = shop.mapping(R"({"name": "Sim A", "files": [{"destination": "x"}]})",
                                     shop.folder("A"));
        const auto disk = shop.disk();
        shop.controller().createRestrictedProcess("touch "_s + shop.path("made"));
        shop.controller().installToXPlane(mapping);
        shop.controller().uninstallFromXPlane(mapping);
        QCOMPARE(shop.disk(), disk);
        QCOMPARE(shop.log.debugLines() + shop.boxes(), QStringList());
        QCOMPARE(shop.controller().m_errorMessage, QString());
    }

    // Also after a missing one.
    void looksUpEveryPluginFileInOrder()
    {
        if (!canSeeLookUps())
            QSKIP("no view of what Qt looks up on this system");
        Workshop shop;
        auto *mapping = shop.mapping(
            R"({"files": [{"destination": "c"}, {"destination": "a"}, {"destination": "b"}]})",
            shop.folder("A"));
        writeFile(shop.path("A/c"), "x");
        takeLookedUpPaths();
        QVERIFY(!mapping->isAddonInstalled());
        QCOMPARE(takeLookedUpPaths(),
                 (QStringList{shop.path("A/a"), shop.path("A/b"), shop.path("A/c")}));
    }

    void looksUpEveryFileOfARecord()
    {
        if (!canSeeLookUps())
            QSKIP("no view of what Qt looks up on this system");
        Workshop shop;
        shop.writeRecord(R"([{"name": "Sim A", "files": ["$ROOT/a", "$ROOT/b"]}])");
        takeLookedUpPaths();
        shop.controller().getUserSimulatorMapping();
        const QStringList asked = takeLookedUpPaths();
        QVERIFY(asked.contains(shop.path("a")) && asked.contains(shop.path("b")));
    }
};

QTEST_MAIN(TestContract)
#include "tst_Contract.moc"

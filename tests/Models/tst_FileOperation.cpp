#include "Models/FileOperation.h"

#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"

#include <QPointer>
#include <QTest>

using Quillmont::Utility::Models::FileOperation;
using Tests::json;
using Tests::jsonValue;

class TestFileOperation : public QObject
{
    Q_OBJECT

private slots:
    void readsRootAndPath();
    void keepsBackslashes();
    void isEmptyWithoutValues();
    void isEmptyWithWronglyTypedValues_data();
    void isEmptyWithWronglyTypedValues();
    void belongsToItsParent();
    void isAPlainObjectToTheMetaSystem();
};

void TestFileOperation::readsRootAndPath()
{
    const FileOperation operation(nullptr, json(R"({"root": "-1", "path": "a/b.dll"})"));
    QCOMPARE(operation.root, QStringLiteral("-1"));
    QCOMPARE(operation.path, QStringLiteral("a/b.dll"));
}

void TestFileOperation::keepsBackslashes()
{
    const FileOperation operation(nullptr, json(R"({"root": "a\\b", "path": "\\a\\b.dll"})"));
    QCOMPARE(operation.root, QStringLiteral(R"(a\b)"));
    QCOMPARE(operation.path, QStringLiteral(R"(\a\b.dll)"));
}

void TestFileOperation::isEmptyWithoutValues()
{
    const FileOperation operation(nullptr, {});
    QCOMPARE(operation.root, QString());
    QCOMPARE(operation.path, QString());
}

void TestFileOperation::isEmptyWithWronglyTypedValues_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"null", "5", "true", R"(["a"])", R"({"a": "b"})"})
        QTest::newRow(value) << QByteArray(value);
}

void TestFileOperation::isEmptyWithWronglyTypedValues()
{
    QFETCH(QByteArray, value);
    const Tests::LogCatcher log;
    const FileOperation operation(
        nullptr,
        {{QStringLiteral("root"), jsonValue(value)}, {QStringLiteral("path"), jsonValue(value)}});
    QCOMPARE(operation.root, QString());
    QCOMPARE(operation.path, QString());
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestFileOperation::belongsToItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<FileOperation> operation = new FileOperation(parent.get(), {});
    QCOMPARE(operation->parent(), parent.get());
    parent.reset();
    QVERIFY(!operation);
}

void TestFileOperation::isAPlainObjectToTheMetaSystem()
{
    const QMetaObject &meta = FileOperation::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Models::FileOperation");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(Tests::ownMembers(meta), QStringList());
}

QTEST_GUILESS_MAIN(TestFileOperation)
#include "tst_FileOperation.moc"

#include "Widgets/AddonListItemDelegate.h"

#include "tests/support/MetaObject.h"

#include <QListWidget>
#include <QTest>

using Quillmont::Utility::Widgets::AddonListItemDelegate;

class TestAddonListItemDelegate : public QObject
{
    Q_OBJECT

private slots:
    void isAsHighAsARowAndAsWideAsItsContent_data();
    void isAsHighAsARowAndAsWideAsItsContent();
    void belongsToItsParent();
    void isAPlainDelegateToTheMetaSystem();
};

void TestAddonListItemDelegate::isAsHighAsARowAndAsWideAsItsContent_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fontSize");
    QTest::newRow("empty") << QString() << 10;
    QTest::newRow("a word") << QStringLiteral("word") << 10;
    QTest::newRow("a long line") << QString(500, u'x') << 10;
    QTest::newRow("many lines") << QStringLiteral("line\n").repeated(50) << 10;
    QTest::newRow("a large font") << QStringLiteral("word") << 90;
}

void TestAddonListItemDelegate::isAsHighAsARowAndAsWideAsItsContent()
{
    QFETCH(QString, text);
    QFETCH(int, fontSize);
    QListWidget list;
    auto *item = new QListWidgetItem(text, &list);
    QFont font;
    font.setPointSize(fontSize);
    item->setFont(font);
    const QModelIndex index = list.model()->index(0, 0);

    const QStyleOptionViewItem option;
    const AddonListItemDelegate delegate(nullptr);
    QCOMPARE(delegate.sizeHint(option, index).height(), 64);
    QCOMPARE(delegate.sizeHint(option, index).width(),
             QStyledItemDelegate().sizeHint(option, index).width());
}

void TestAddonListItemDelegate::belongsToItsParent()
{
    QObject parent;
    const auto *delegate = new AddonListItemDelegate(&parent);
    QCOMPARE(delegate->parent(), &parent);
}

void TestAddonListItemDelegate::isAPlainDelegateToTheMetaSystem()
{
    const QMetaObject &meta = AddonListItemDelegate::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Widgets::AddonListItemDelegate");
    QCOMPARE(meta.superClass(), &QStyledItemDelegate::staticMetaObject);
    QCOMPARE(Tests::ownMembers(meta), QStringList());
}

QTEST_MAIN(TestAddonListItemDelegate)
#include "tst_AddonListItemDelegate.moc"

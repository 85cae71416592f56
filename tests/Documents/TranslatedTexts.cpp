#include "tests/Documents/TranslatedTexts.h"

#include "tests/support/Command.h"
#include "tests/support/Literals.h"

#include <QDir>
#include <QXmlStreamReader>
#include <QtTest>

namespace Tests {

// Bytes that XML cannot represent are written as numbers.
static QString elementText(QXmlStreamReader &reader)
{
    QString text;
    while (reader.readNext() != QXmlStreamReader::EndElement && !reader.atEnd()) {
        if (reader.isStartElement()) {
            text += QChar(
                reader.attributes().value(QLatin1String("value")).mid(1).toUInt(nullptr, 16));
            reader.skipCurrentElement();
        } else {
            text += reader.text();
        }
    }
    return text;
}

static TranslatedText readMessage(QXmlStreamReader &reader, const QString &context)
{
    TranslatedText text{context, {}, {}, true};
    const bool isPlural = reader.attributes().hasAttribute(QLatin1String("numerus"));
    while (!(reader.readNext() == QXmlStreamReader::EndElement
             && reader.name() == QLatin1String("message"))
           && !reader.atEnd()) {
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("source"))
            text.source = elementText(reader);
        else if (reader.name() == QLatin1String("translation")) {
            text.isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
            if (!isPlural)
                text.translations.append(elementText(reader));
        } else if (reader.name() == QLatin1String("numerusform"))
            text.translations.append(elementText(reader));
    }
    return text;
}

QStringList translatedLanguages()
{
    QStringList languages = QDir(QStringLiteral(ORBWELL_SOURCE "/translations"))
                                .entryList({"orbwell_*.ts"_s}, QDir::Files);
    for (QString &language : languages)
        language = language.mid(8).chopped(3);
    return languages;
}

QString translationPath(const QString &language)
{
    return QStringLiteral(ORBWELL_SOURCE "/translations/orbwell_%1.ts").arg(language);
}

QList<TranslatedText> translatedTexts(const QByteArray &translations)
{
    QList<TranslatedText> texts;
    QXmlStreamReader reader(translations);
    QString context;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.isStartElement() && reader.name() == QLatin1String("message"))
            texts.append(readMessage(reader, context));
    }
    return texts;
}

bool updateTranslations(const QString &file)
{
    // Without the headers it would not know the namespaces of classes, and the program would not
    // find the translations.
    const CommandResult result
        = Command(
              QStringLiteral(ORBWELL_LUPDATE),
              QStringList{"-I"_s, "."_s, "-locations"_s, "none"_s, "-no-obsolete"_s}
                  + QStringList{"main.cpp"_s, "Controllers"_s, "Doctor"_s, "Library"_s, "Models"_s}
                  + QStringList{"SimDetect"_s, "ViewControllers"_s, "Views"_s, "Widgets"_s}
                  + QStringList{"-ts"_s, file})
              .in(QStringLiteral(ORBWELL_SOURCE))
              .run();
    [&result] {
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(result.errors, QByteArray());
    }();
    return !QTest::currentTestFailed();
}

} // namespace Tests

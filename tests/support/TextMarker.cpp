#include "tests/support/TextMarker.h"

#include <QCoreApplication>

namespace Tests {

TextMarker::TextMarker()
{
    QCoreApplication::installTranslator(this);
}

TextMarker::~TextMarker()
{
    QCoreApplication::removeTranslator(this);
}

QString TextMarker::translate(const char *context,
                              const char *sourceText,
                              const char * /*disambiguation*/,
                              int /*n*/) const
{
    const QString name = QString::fromLatin1(context);
    if (!name.startsWith(QLatin1String("Quillmont::")))
        return {};
    return QStringLiteral("[%1] %2").arg(name, QString::fromUtf8(sourceText));
}

} // namespace Tests

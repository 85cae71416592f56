#ifndef DOCTOR_XMLDAMAGE_H
#define DOCTOR_XMLDAMAGE_H

#include "Doctor/TagReader.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

namespace Quillmont::Utility::Doctor {

/// Says in words what is wrong with a file that is not well-formed XML. Whether it is, the library
/// decides; this only looks for what a person would see there.
class XmlDamage
{
    Q_DECLARE_TR_FUNCTIONS(XmlDamage)

public:
    /// Looks at @p text, which the reader has refused with @p problem, "line 3, column 5: why".
    XmlDamage(const QString &text, const QString &problem);

    /// One sentence, or a few.
    const QString &sentence() const { return m_sentence; }

    /// Where that is, from 1. The reader may have noticed it later.
    int line() const { return lineOf(m_place); }

    int column() const;

    /// The line there without its white space, cut off after some 160 characters.
    QString brokenLine() const;

private:
    struct Open
    {
        QString name;
        int begin;
    };

    bool findKind();
    bool findStructure();
    bool findText();
    bool take(const Tag &tag);
    bool takeLateDeclaration(const Tag &tag);
    bool takeStart(const Tag &tag);
    bool takeEnd(const Tag &tag);
    bool takeExtraEnd(const Tag &tag);
    bool takeMalformed(const Tag &tag);
    void takeReaderPlace(const QString &problem);
    bool say(int place, const QString &sentence);
    int lineOf(int place) const;
    int lineBegin(int place) const;
    QString written(const Tag &tag) const;

    const QString m_text;
    QString m_sentence;
    int m_place = 0;
    QVector<Open> m_open;
    QString m_root;
    int m_rootEnd = -1; ///< Behind the root element, once it has ended.
    int m_secondRoot = -1; ///< The begin of an element behind that.
};

} // namespace Quillmont::Utility::Doctor

#endif

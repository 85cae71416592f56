#ifndef DOCTOR_XMLDAMAGE_H
#define DOCTOR_XMLDAMAGE_H

#include "Doctor/TagReader.h"

#include <QCoreApplication>
#include <QString>
#include <QStringRef>
#include <QVector>

namespace Quillmont::Utility::Doctor {

/// Explains what is wrong with a file that the library has refused as not well-formed XML, in terms
/// of what a person sees there.
class XmlDamage
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::XmlDamage)

public:
    /// Looks at @p text, which the reader has refused with @p problem, "line 3, column 5: why".
    XmlDamage(const QString &text, const QString &problem);

    /// One sentence, or a few.
    const QString &sentence() const { return m_sentence; }

    /// The line of the damage, from 1; the reader may have noticed it later.
    int line() const { return lineOf(m_place); }

    int column() const;

    /// That line, trimmed and cut off after about 160 characters.
    QString brokenLine() const;

private:
    struct Open
    {
        int begin;
        int nameSize; ///< Of the name behind its "<"; a copy of each may take a gigabyte.
    };

    bool findKind();
    bool findStructure();
    bool findText();
    bool findBare(const QString &text);
    bool take(const Tag &tag);
    bool takeLateDeclaration(const Tag &tag);
    bool takeStart(const Tag &tag);
    bool takeEnd(const Tag &tag);
    bool takeOtherEnd(const Tag &tag);
    bool takeExtraEnd(const Tag &tag);
    bool takeUnfinished(const Tag &tag);
    bool takeMalformed(const Tag &tag);
    bool say(int place, const QString &sentence);
    int lineOf(int place) const;
    QString lineText(int place) const;
    QStringRef nameOf(Open open) const;
    QString written(const Tag &tag) const;

    const QString m_text;
    QString m_sentence;
    int m_place = 0;
    QVector<Open> m_open;
    QString m_root;
    int m_rootEnd = -1; ///< After the root element, once it has ended.
    int m_secondRoot = -1; ///< The begin of an element after that.
};

} // namespace Quillmont::Utility::Doctor

#endif

#ifndef DOCTOR_PROBLEMS_H
#define DOCTOR_PROBLEMS_H

#include <QJsonArray>
#include <QString>

namespace Quillmont::Utility::Doctor {

/// The problems, in the order in which they were found.
class Problems
{
public:
    /// The simulator may load no add-on at all.
    void addGrave(const QString &text, const QString &advice) { add("grave", text, advice); }

    /// The plugin does not load, or cannot be installed until this is solved.
    void addError(const QString &text, const QString &advice) { add("error", text, advice); }

    /// The plugin works, but not as it should.
    void addWarning(const QString &text, const QString &advice) { add("warning", text, advice); }

    /// One object per problem, with "level", "text" and "advice".
    const QJsonArray &all() const { return m_all; }

private:
    void add(const char *level, const QString &text, const QString &advice);

    QJsonArray m_all;
};

} // namespace Quillmont::Utility::Doctor

#endif

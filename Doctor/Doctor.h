#ifndef DOCTOR_DOCTOR_H
#define DOCTOR_DOCTOR_H

#include "Doctor/Simulator.h"

#include <QCoreApplication>

class QJsonObject;
class QTextStream;

namespace Quillmont::Utility::Doctor {

class Options;

/// One run of the program: examines, and reports.
class Doctor
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Doctor)

public:
    enum Status {
        Fine = 0,
        SomethingWrong = 1,
        CouldNotLook = 2
    };

    /// All arguments have to outlive this.
    Doctor(const Options &options, QTextStream *output, QTextStream *errors);

    /// Does what the options request, and returns the exit status.
    int run();

private:
    int start();
    int finished(int status);
    int look();
    int examine(const QString &catalogue);
    int fail(const QString &problem);
    int answer(const QJsonObject &answer);
    void printJson(QJsonObject answer);
    bool areKnown(const QList<Simulator> &simulators);
    QString catalogueText(QString *problem) const;
    QString catalogueFile() const;
    QString payloadFolder() const;

    const Options &m_options;
    QTextStream *const m_output;
    QTextStream *const m_errors;
};

} // namespace Quillmont::Utility::Doctor

#endif

#include "benchmarks/support/Table.h"

#include <QTextStream>

namespace Benchmarks {

namespace {

QString number(double value, const QString &unit)
{
    const int digits = value < 1 ? 3 : value < 100 ? 1 : 0;
    return QString::number(value, 'f', digits) + u' ' + unit;
}

QString measure(double Cost::*member)
{
    if (member == &Cost::cpu)
        return QStringLiteral(", CPU");
    return member == &Cost::wall ? QStringLiteral(", wall") : QStringLiteral(", peak memory");
}

} // namespace

int Table::pairs(int argc, const char *const *argv)
{
    return argc > 1 && QByteArray(argv[1]) == "--tiny" ? 1 : 7;
}

void Table::compare(const QString &what,
                    double Cost::*member,
                    const Comparison &comparison,
                    double goal)
{
    const QString unit = member == &Cost::memory ? QStringLiteral("MB") : QStringLiteral("ms");
    row(what + measure(member),
        number(comparison.ours.*member, unit),
        number(comparison.floor.*member, unit),
        QString::number(comparison.ratio.*member, 'f', 2),
        goal > 0 ? QStringLiteral("%1 at most").arg(goal) : QStringLiteral("told"));
}

void Table::growth(const QString &what, const QVector<double> &sizes, const QVector<double> &costs)
{
    const QString power = QString::number(exponent(sizes, costs), 'f', 2);
    row(what + QStringLiteral(", growth"),
        QStringLiteral("size^%1").arg(power),
        {},
        {},
        QStringLiteral("linear: 1"));
}

void Table::row(const QString &what,
                const QString &ours,
                const QString &floor,
                const QString &ratio,
                const QString &goal)
{
    QTextStream(stdout) << "| "
                        << QStringList{what, ours, floor, ratio, goal}.join(QStringLiteral(" | "))
                        << " |\n";
}

void Table::explain(const QString &text)
{
    QTextStream(stdout) << text << "\n";
}

} // namespace Benchmarks

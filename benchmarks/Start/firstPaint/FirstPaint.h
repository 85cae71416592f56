#ifndef FIRSTPAINT_FIRSTPAINT_H
#define FIRSTPAINT_FIRSTPAINT_H

#include <QObject>

namespace Benchmarks {

/// Ends the program as soon as its first window has been painted.
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    explicit FirstPaint(QObject *parent);

    bool eventFilter(QObject *object, QEvent *event) override;
};

} // namespace Benchmarks

#endif

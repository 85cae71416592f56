#ifndef VIEWS_SCANNERVIEW_H
#define VIEWS_SCANNERVIEW_H

#include "Models/FlightSimulatorMapping.h"

#include <QList>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;

namespace Quillmont::Utility::Views {

/// The program's window: a sentence that says what it does, a row for each simulator, two buttons.
class ScannerView : public QWidget
{
    Q_OBJECT

public:
    explicit ScannerView(QWidget *parent);
    ~ScannerView() override;

    /// Replaces the rows by one for each of @p mappings, which are not owned. The scroll position
    /// is kept, and the focus goes to the same control of the new row. With @p updateDefault,
    /// folders that the user picked earlier replace those of the mappings. With neither flag, a box
    /// says how many simulators have a folder.
    void
    setScanResult(QList<Models::FlightSimulatorMapping *> mappings, bool updateDefault, bool quiet);

signals:
    void scanRequested();
    void install(Quillmont::Utility::Models::FlightSimulatorMapping *mappingToInstall);
    void uninstall(Quillmont::Utility::Models::FlightSimulatorMapping *);

private:
    /// Identifies a control of a row after the row was replaced.
    struct RowControl
    {
        int row = -1;
        QString simulator;
        QString control;
    };

    QLabel *makeIntroduction();
    QListWidget *makeList();
    QHBoxLayout *makeButtons();
    void explainEmptyList();
    void showEmptyListText(bool isEmpty);
    int rowAround(const QWidget *widget) const;
    void showRowAround(const QWidget *widget);
    RowControl focusedControl() const;
    int rowOf(const RowControl &wanted) const;
    void focusControl(const RowControl &wanted);
    void scrollTo(int position);
    void setRow(int index, Models::FlightSimulatorMapping *mapping, bool updateDefault);
    void moveButtonsAfterRows();
    void showCount(int count);

    QLabel *m_introduction;
    QListWidget *m_list;
    QLabel *m_emptyListText;
    QPushButton *m_close;
    QPushButton *m_scanAndInstall;
};

} // namespace Quillmont::Utility::Views

#endif

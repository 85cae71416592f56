#ifndef WIDGETS_ADDONLISTITEM_H
#define WIDGETS_ADDONLISTITEM_H

#include "Models/FlightSimulatorMapping.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace Quillmont::Utility::Widgets {

/// One row of the simulator list: the state of the plugin in a simulator, the simulator's name and
/// folder, and the button that installs or uninstalls. The row only emits signals for that work; it
/// stores a folder that the user picks. Its accessible name is the simulator's, its accessible
/// description the state in words.
class AddonListItem : public QWidget
{
    Q_OBJECT

public:
    /// A row for @p mapping, which is not owned. With @p updateDefault a folder that the user
    /// picked earlier replaces the mapping's; without it, that choice is forgotten.
    AddonListItem(QWidget *parent, Models::FlightSimulatorMapping *mapping, bool updateDefault);

signals:
    void install(Quillmont::Utility::Models::FlightSimulatorMapping *mapping);
    void uninstall(Quillmont::Utility::Models::FlightSimulatorMapping *mapping);

public slots:
    /// Lets the user pick the simulator's folder, and stores it for later runs.
    void browsePath();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *part, QEvent *event) override;

private:
    QString getMappedPath();
    void savePath();
    void removeSettings();
    void updateStatus();

    QPixmap artwork(const QString &name) const;
    QString settingsKey() const;
    QString stateInWords(bool exists, bool installed) const;
    void explainButtons();
    void arrange();
    void nameControls();
    void watchParts();
    void applyMappedPath(bool updateDefault);
    void showPath(const QString &path);
    void requestAction();

    Models::FlightSimulatorMapping *m_mapping;
    QLabel *m_icon;
    QLabel *m_name;
    QLineEdit *m_path;
    QToolButton *m_browse;
    QToolButton *m_action;
};

} // namespace Quillmont::Utility::Widgets

#endif

#ifndef BENCHMARKS_VIEWCONTROLLERS_SIMULATORS_H
#define BENCHMARKS_VIEWCONTROLLERS_SIMULATORS_H

#include "benchmarks/support/Cost.h"
#include "tests/support/Sandbox.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

namespace Quillmont::Utility::ViewControllers {
class ScanController;
} // namespace Quillmont::Utility::ViewControllers

namespace Benchmarks {

/// Simulators to install into, with a catalogue and a payload beside this program.
class Simulators
{
public:
    /// The plugin files for each simulator.
    struct Payload
    {
        int files;
        int size; ///< Of each file, in bytes.
        int type; ///< As in the catalogue; 0 has a configuration file of 20 KB.
    };

    Simulators(int count, Payload payload);
    ~Simulators();
    Simulators(const Simulators &) = delete;
    Simulators &operator=(const Simulators &) = delete;

    /// Restores the state before any installation.
    void reset() const;

    /// The cost of @p work on a new controller.
    static Cost costOfController(
        const std::function<void(Quillmont::Utility::ViewControllers::ScanController *)> &work);

    /// Copies the payload into all simulators, one file after the other.
    void copyBare() const;

    /// The files' destinations in all simulators.
    QStringList targets() const;

    /// The initial configuration file.
    static QByteArray configuration();

private:
    QString folder(int simulator) const;
    QString configurationFile(int simulator) const;
    void placePayload() const;
    void placeCatalogue() const;

    Tests::Sandbox m_sandbox;
    int m_count;
    Payload m_payload;
};

} // namespace Benchmarks

#endif

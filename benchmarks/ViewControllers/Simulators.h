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
    /// What each simulator gets.
    struct Payload
    {
        int files;
        int size; ///< Of each, in bytes.
        int type; ///< As in the catalogue; 0 has a configuration file of 20 KB.
    };

    Simulators(int count, Payload payload);
    ~Simulators();
    Simulators(const Simulators &) = delete;
    Simulators &operator=(const Simulators &) = delete;

    /// Makes all as it was before anything was installed.
    void reset() const;

    /// What @p work of a new controller costs.
    static Cost costOfController(
        const std::function<void(Quillmont::Utility::ViewControllers::ScanController *)> &work);

    /// Copies the payload into all simulators, one file after the other.
    void copyBare() const;

    /// Where the files belong, for all simulators.
    QStringList targets() const;

    /// A configuration file as it was before.
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

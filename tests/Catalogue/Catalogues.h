#ifndef TESTS_CATALOGUE_CATALOGUES_H
#define TESTS_CATALOGUE_CATALOGUES_H

#include <QByteArray>
#include <QJsonArray>
#include <QString>
#include <QVector>

namespace Tests {

/// The catalogue as a user gets it.
QByteArray shippedCatalogue();

/// The sample's, with its simulators below @p simulators.
QByteArray sampleCatalogue(const QString &simulators);

/// The JSON blocks of a document in the source tree, "docs/catalogue.md", in order.
QVector<QByteArray> jsonBlocks(const QString &document);

/// The folder of the payload, without a slash at its end.
QString payloadFolder();

/// The entries of a catalogue that is known to be sound.
QJsonArray entriesOf(const QByteArray &catalogue);

} // namespace Tests

#endif

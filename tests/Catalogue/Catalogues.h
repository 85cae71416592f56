#ifndef TESTS_CATALOGUE_CATALOGUES_H
#define TESTS_CATALOGUE_CATALOGUES_H

#include <QByteArray>
#include <QJsonArray>
#include <QString>
#include <QVector>

namespace Tests {

/// The catalogue as shipped.
QByteArray shippedCatalogue();

/// The sample's catalogue, with its simulators below @p simulators.
QByteArray sampleCatalogue(const QString &simulators);

/// The JSON blocks of a document in the source tree, "docs/catalogue.md", in order.
QVector<QByteArray> jsonBlocks(const QString &document);

/// The folder of the payload, without a trailing slash.
QString payloadFolder();

/// The entries of a valid catalogue.
QJsonArray entriesOf(const QByteArray &catalogue);

} // namespace Tests

#endif

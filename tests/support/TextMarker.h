#ifndef TESTS_SUPPORT_TEXTMARKER_H
#define TESTS_SUPPORT_TEXTMARKER_H

#include <QTranslator>

namespace Tests {

/// For its lifetime "translates" each of the program's texts into "[context] text".
class TextMarker : public QTranslator
{
    Q_OBJECT

public:
    TextMarker();
    ~TextMarker() override;

    bool isEmpty() const override { return false; }

    QString translate(const char *context,
                      const char *sourceText,
                      const char *disambiguation,
                      int n) const override;
};

} // namespace Tests

#endif

#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

class InstallByClick : public QObject
{
    Q_OBJECT
};

QTEST_GUILESS_MAIN(InstallByClick)
#include "tst_InstallByClick.moc"

#include "Controllers/PathEncoding.h"
#include "Controllers/StandardDescriptors.h"
#include "Controllers/Translations.h"
#include "Doctor/Doctor.h"
#include "Doctor/Options.h"

#include <QCoreApplication>
#include <QTextCodec>
#include <QTextStream>

#include <clocale>
#include <csignal>
#include <cstdio>

using Quillmont::Utility::Controllers::installTranslations;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::Controllers::tieClosedDescriptors;
using Quillmont::Utility::Doctor::Doctor;
using Quillmont::Utility::Doctor::Options;

int main(int argc, char *argv[])
{
    // Before anything else, since everything else may open a file.
    tieClosedDescriptors();

    // As the program with the window does, so that both read the same.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    PathEncoding::ignoreRelativeFolders();
    std::signal(SIGPIPE, SIG_IGN);

    const QCoreApplication application(argc, argv);
    // The paths of the user's files contain the name of the program with the window.
    QCoreApplication::setApplicationName(QStringLiteral("QuillmontOrbwell"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORBWELL_VERSION));

    QTextStream output(stdout);
    QTextStream errors(stderr);
    output.setCodec("UTF-8");
    errors.setCodec("UTF-8");
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    // A script reads the same everywhere, down to what the system says about a file.
    if (Options(arguments).isJson())
        std::setlocale(LC_MESSAGES, "C");
    else
        installTranslations();
    const Options options(arguments);
    return Doctor(options, &output, &errors).run();
}

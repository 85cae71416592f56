#include "tests/support/Texts.h"

#include "tests/support/Literals.h"

namespace Tests {

namespace {

QString settingsBox(const QString &text)
{
    return box("Quillmont Orbwell Settings"_s, text);
}

QString withDetails(const QString &text, const QString &details)
{
    return text + "\r\n\r\nPlease see the list below for details:\r\n\r\n"_s + details;
}

} // namespace

QString box(const QString &title, const QString &text)
{
    return title + ": "_s + text;
}

QString installedBox(const QString &simulator)
{
    return box("Installation complete"_s,
               "Quillmont Orbwell have successfully installed Orbwell plugin to "_s + simulator
                   + u'.');
}

QString notInstalledBox(const QString &simulator, const QString &errorLines)
{
    return box("Installation"_s,
               withDetails("Quillmont Orbwell was not able to install your Orbwell plugin to "_s
                               + simulator + u'.',
                           errorLines));
}

QString uninstalledBox(const QString &simulator)
{
    return box("Uninstall"_s,
               "Quillmont Orbwell for "_s + simulator + " has been uninstalled successfully."_s);
}

QString notUninstalledBox(const QString &simulator, const QString &errorLines)
{
    return box("Uninstall"_s,
               withDetails("Quillmont Orbwell was not able to uninstall your Orbwell plugin from "_s
                               + simulator + u'.',
                           errorLines));
}

// The text before the names ends with a space, and each name begins with one.
QString autoInstalledBox(const QStringList &simulators)
{
    return settingsBox("Quillmont Orbwell have successfully installed Orbwell plugin to  "_s
                       + simulators.join(u' ') + u'.');
}

QString allInstalledBox()
{
    return settingsBox("Orbwell plugin is installed in all simulators."_s);
}

QString noSimulatorBox()
{
    return settingsBox("There are no other simulator found for install Orbwell plugin."_s);
}

QString updatedBox(const QStringList &lines)
{
    return box("Plugins updated"_s,
               withDetails("Quillmont Orbwell has updated plugins on your computer."_s,
                           lines.join(u'\n')));
}

QString cannotCopy(const QString &source, const QString &target, const QString &folder)
{
    return "Unable to copy '"_s + source + "' to '"_s + target
        + "'. Please check if you have permission to folder '"_s + folder + "'.\r\n"_s;
}

QString cannotRemove(const QString &file, const QString &simulator)
{
    return "Unable to remove file '"_s + file + "' from "_s + simulator
        + ". Please remove the file manually.\r\n"_s;
}

QString cannotRead(const QString &file)
{
    return "The file '"_s + file
        + "' is empty. Quillmont Orbwell installer was not able to change your configuration."_s;
}

QString cannotWrite(const QString &file)
{
    return "Unable to write configuration to file '"_s + file
        + "'. Please check if you have permission to that file."_s;
}

} // namespace Tests

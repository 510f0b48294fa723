#include "app/Startup.h"

#include "app/MainWindow.h"
#include "data/Version.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void onTerminate()
{
    const QString text = startup::uncaughtMessage(std::current_exception());
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    // Before there is an application object a message box would only end the process less clearly.
    if (QCoreApplication::instance() != nullptr) {
        QMessageBox::critical(nullptr, QCoreApplication::translate("Startup", "Error"), text,
                              QMessageBox::Ok);
    }
    std::abort();
}

}  // namespace

int runApplication(int argc, char** argv)
{
    std::set_terminate(onTerminate);
    startup::setIdentity();
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));

    MainWindow window;
    window.show();
    const QString file = startup::fileArgument(QCoreApplication::arguments());
    if (!file.isEmpty()) {
        window.openDatasetFile(file);
    }
    return QApplication::exec();
}

namespace startup {

void setIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Brindlework"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("brindlework.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Quorlane"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(quorlane::version));
}

QString uncaughtMessage(const std::exception_ptr& exception)
{
    try {
        if (exception) {
            std::rethrow_exception(exception);
        }
    } catch (const std::exception& error) {
        return QCoreApplication::translate("Startup", "Uncatched exception: %1")  // sic
            .arg(QString::fromUtf8(error.what()));
    } catch (...) {
        // Nothing is known of it but that it was thrown.
    }
    return QCoreApplication::translate("Startup", "Unknown exception, the application will quit.");
}

QString fileArgument(const QStringList& arguments)
{
    return arguments.size() < 2 ? QString() : QDir::current().absoluteFilePath(arguments.at(1));
}

}  // namespace startup

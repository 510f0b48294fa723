#include "app/start/Startup.h"

#include "app/dialogs/DialogPrompts.h"
#include "app/look/Icons.h"
#include "app/start/SingleInstance.h"
#include "app/start/Translations.h"
#include "app/start/WebSite.h"
#include "app/start/WindowsCheck.h"
#include "app/window/MainWindow.h"
#include "data/FilePath.h"
#include "data/Version.h"

#include <spdlog/spdlog.h>

#include <QApplication>
#include <QDir>
#include <QLocale>
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
    // What is declared here ends in the opposite order: the window, the translator, the channel.
    const QApplication application(argc, argv);
    if (!isSupportedSystem()) {
        DialogPrompts(nullptr).critical(QCoreApplication::translate("Startup", "Unsupported OS"),
                                        startup::unsupportedSystemMessage());
        return EXIT_FAILURE;
    }

    const QString file = startup::fileArgument(startup::argumentsOf(argc, argv));
    SingleInstance instance;
    if (!file.isEmpty() && instance.handOver(file)) {
        return EXIT_SUCCESS;
    }
    if (!instance.listen()) {
        spdlog::critical("Failed to start server: {}", instance.errorString().toStdString());
        return EXIT_FAILURE;
    }

    QApplication::setWindowIcon(icons::application());
    const auto translator =
        translations::load(QLocale::system().uiLanguages(), QStringLiteral(":/i18n/"));
    const auto toolkitTranslator = translator ? translations::loadToolkit(*translator) : nullptr;
    for (QTranslator* each : {toolkitTranslator.get(), translator.get()}) {
        if (each != nullptr) {
            QCoreApplication::installTranslator(each);
        }
    }

    MainWindow window;
    window.show();
    if (!file.isEmpty() && window.hasWorkspace()) {
        window.openReceivedFile(file);
    }
    QObject::connect(&instance, &SingleInstance::signalFileReceived, &window,
                     &MainWindow::openReceivedFile);
    instance.serve();
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

QString unsupportedSystemMessage()
{
    return QCoreApplication::translate("Startup",
                                       "This application does not run on Windows Server edition. "
                                       "Please download the server edition from the website: %1")
        .arg(QString::fromUtf8(quorlane::webSite) + QStringLiteral("/download/"));
}

QStringList argumentsOf(int argc, char** argv)
{
#ifdef Q_OS_WIN
    return QCoreApplication::arguments();
#else
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << filepath::fromBytes(argv[i]);
    }
    return arguments;
#endif
}

QString fileArgument(const QStringList& arguments)
{
    const QString file = arguments.value(1);
    return file.isEmpty() ? QString() : QDir::current().absoluteFilePath(file);
}

}  // namespace startup

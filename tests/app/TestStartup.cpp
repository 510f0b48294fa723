#include "app/start/Startup.h"
#include "app/start/WindowsCheck.h"
#include "data/Version.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>

#include <stdexcept>

TEST(Startup, namesTheApplicationForItsSettings)
{
    startup::setIdentity();
    EXPECT_EQ(QCoreApplication::organizationName(), QString("Brindlework"));
    EXPECT_EQ(QCoreApplication::organizationDomain(), QString("brindlework.example"));
    EXPECT_EQ(QCoreApplication::applicationName(), QString("Quorlane"));
    EXPECT_EQ(QCoreApplication::applicationVersion(), QString(quorlane::version));
    EXPECT_TRUE(isSupportedSystem());
    EXPECT_TRUE(startup::unsupportedSystemMessage().endsWith(
        ": https://quorlane.brindlework.example/download/"));
}

TEST(Startup, tellsWhatWasThrown)
{
    const auto message = [](auto thrown) {
        return startup::uncaughtMessage(std::make_exception_ptr(thrown)).toStdString();
    };
    EXPECT_EQ(message(std::runtime_error("disk full")), "Uncatched exception: disk full");
    EXPECT_EQ(message(42), "Unknown exception, the application will quit.");
    EXPECT_EQ(startup::uncaughtMessage(nullptr).toStdString(),
              "Unknown exception, the application will quit.");
}

TEST(Startup, takesTheFirstArgumentAsAFileAndMakesItAbsolute)
{
    const QString here = QDir::currentPath();
    EXPECT_EQ(startup::fileArgument({"quorlane"}), QString());
    EXPECT_EQ(startup::fileArgument({"quorlane", ""}), QString());
    EXPECT_EQ(startup::fileArgument({"quorlane", "ae.xpt", "dm.xpt"}), here + "/ae.xpt");
    EXPECT_EQ(startup::fileArgument({"quorlane", "/data/ae.xpt"}), QString("/data/ae.xpt"));
}

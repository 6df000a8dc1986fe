// morvane-gui: the desktop window. The program is the add-in's host: it
// connects the add-in as an external start, which shows the main window, and
// ends when the add-in closes its connection.
#include <QApplication>
#include <QCommandLineParser>
#include <cstring>

#include "shell/connect.h"
#include "shell/self_test.h"
#include "shell/shell_text.h"

using namespace morvane;

int main(int argc, char** argv) {
  // Without a display the self-test draws offscreen.
  bool selfTest = false;
  for (int i = 1; i < argc; ++i) selfTest = selfTest || std::strcmp(argv[i], "--self-test") == 0;
  if (selfTest && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
      qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");

  QApplication app(argc, argv);
  QApplication::setApplicationName("Morvane");
  QApplication::setOrganizationName("Halvex Systems");
  QApplication::setApplicationVersion(MORVANE_VERSION);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "The desktop window of Morvane, which converts a Microsoft Access 2000/XP application into "
      "a Visual Basic 6 project.");
  parser.addHelpOption();
  parser.addVersionOption();
  QCommandLineOption test("self-test",
                          "Convert SOURCE into OUTPUT through the window, answering every "
                          "question, and exit with the run's status.");
  parser.addOption(test);
  parser.addPositionalArgument("SOURCE", "with --self-test: the source to convert");
  parser.addPositionalArgument("OUTPUT", "with --self-test: the output directory");
  parser.process(app);
  if (parser.isSet(test)) {
    if (parser.positionalArguments().size() != 2) parser.showHelp(2);
    return RunSelfTest(parser.positionalArguments()[0], parser.positionalArguments()[1]);
  }

  Connect host;
  QObject::connect(&host, &Connect::Closed, &app, &QApplication::quit, Qt::QueuedConnection);
  host.OnConnection(kConnectExternal);
  if (!host.FormDisplayed()) return 1;
  return QApplication::exec();
}

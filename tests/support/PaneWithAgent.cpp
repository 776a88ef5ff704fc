#include "PaneWithAgent.h"

#include "RunningPrograms.h"
#include "TestApplication.h"

#include "KTXConstants.h"
#include "platform/foundation/processes/Processes.h"

PaneWithAgent::~PaneWithAgent()
{
    for (const pid_t agent : agents())
        killProcess(agent);
}

void PaneWithAgent::putAgent()
{
    const QString contents = QStringLiteral("Contents/Resources/LumarooAgent.app/Contents/");
    bundle().writeFile(contents + QStringLiteral("Info.plist"), R"(<plist version="1.0"><dict>
        <key>CFBundleIdentifier</key><string>com.quorvane.LumarooAgent</string>
        <key>CFBundleExecutable</key><string>LumarooAgent</string></dict></plist>)");
    bundle().copyProgram(contents + QStringLiteral("Linux/LumarooAgent"), TestApplication::idleProgram());
}

QList<pid_t> PaneWithAgent::agents()
{
    QList<pid_t> found;
    ProcessSerialNumber process;
    while (GetNextProcess(&process) == noErr) {
        const QVariantMap information =
            ProcessInformationCopyDictionary(process, kProcessDictionaryIncludeAllInformationMask);
        if (information.value(kCFBundleIdentifierKey) == KTXLMAgentID)
            found += pid_t(process.lowLongOfPSN);
    }
    return found;
}

RecordingPane &PaneWithAgent::paneThatCarriesOut(const QStringList &operations)
{
    pane().carryOut(operations);
    calls.clear();
    bus().clear();
    return pane();
}

RecordingPane &PaneWithAgent::controllingPane()
{
    return paneThatCarriesOut({QStringLiteral("updateAgentVisuals"), QStringLiteral("setAgentVisualsOn:"),
        QStringLiteral("setAgentVisualsOff"), QStringLiteral("startAgent"), QStringLiteral("stopAgent")});
}

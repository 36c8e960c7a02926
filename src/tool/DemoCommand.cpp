// zelora demo FOLDER
#include "tool/CommandLine.h"
#include "tool/demo/DemoStudy.h"

int RunDemo(CommandWords words)
{
    const ParsedWords parsed = ParseWords(words, {});
    if (!parsed.fProblem.empty() || parsed.fPaths.size() != 1)
        return WrongUsage(parsed.fProblem.empty() ? "demo takes one folder" : parsed.fProblem);
    std::string failure;
    if (WriteDemoStudy(parsed.fPaths[0], &failure) != kQvxOK) {
        // The failure names its own file.
        return Failure("demo", failure);
    }
    return kExitOK;
}

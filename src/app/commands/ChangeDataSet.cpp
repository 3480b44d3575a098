#include "app/commands/ChangeDataSet.h"

#include "app/Session.h"

namespace purrlodge {

std::optional<int> changeDataSet(Session& session, ChangeDataSetQuestions& questions)
{
    std::optional<int> quitCode;
    questions.fillChangeDataSource(
        session.folder.path(), [&session, &questions, &quitCode](const std::string& typed) {
            quitCode =
                acceptChangeDataSource(typed, session.ports.profile, session.ports.ui, questions);
            return quitCode ? FormVerdict::Accept : FormVerdict::StayOpen;
        });
    return quitCode;
}

} // namespace purrlodge

#pragma once

#include <optional>
#include <string>

#include "app/DataFolderSetup.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

class ChangeDataSetQuestions : public DataFolderQuestions {
public:
    // Change Data Source (DIALOG 30), its edit holding the folder in use. It
    // calls `onOk` with the folder typed at each OK and stays open while it
    // answers StayOpen. The closing verdict, or nothing on Cancel.
    virtual std::optional<FormVerdict> fillChangeDataSource(const std::string& currentFolder,
                                                            const OkRule<std::string>& onOk) = 0;
};

// Setup | Change Data Set (11842): registers another data folder, which is
// used from the next start. The code the program must quit with once a folder
// is registered; nothing when the person cancelled.
std::optional<int> changeDataSet(Session& session, ChangeDataSetQuestions& questions);

} // namespace purrlodge

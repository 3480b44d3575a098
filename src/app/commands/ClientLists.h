#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>

#include "print/ListPages.h"

namespace purrlodge {

class Session;

// The lists of current clients, in the order they are offered.
enum class ClientListChoice { People, Cats, Full, Active, Inactive };

inline constexpr std::array<ClientListChoice, 5> clientListChoices{
    ClientListChoice::People, ClientListChoice::Cats, ClientListChoice::Full,
    ClientListChoice::Active, ClientListChoice::Inactive};

// The name the choice is offered under.
[[nodiscard]] std::string_view clientListName(ClientListChoice choice);

// The dialogs of the client lists.
class ClientListQuestions {
public:
    virtual ~ClientListQuestions() = default;

    using ListFor = std::function<ListPages(ClientListChoice)>;
    using PrintList = std::function<void(ClientListChoice)>;

    // The list on screen, starting with `initial`: each choice shows what
    // `listFor` answers for it, and Print calls `print` with the choice shown;
    // the list stays open until Close.
    virtual void showClientList(ClientListChoice initial, const ListFor& listFor,
                                const PrintList& print) = 0;

    // Which list to print, `initial` chosen first; nothing on Cancel.
    virtual std::optional<ClientListChoice> chooseClientList(ClientListChoice initial) = 0;
};

// The pages of a list over the session's current clients, as read now.
[[nodiscard]] ListPages clientListPages(Session& session, ClientListChoice choice);

// Prints every page of the list, each as the list's job, with the print
// dialog at most once; a page that does not print stops the rest. Whether
// every page printed.
bool printClientListPages(Session& session, ClientListChoice choice, const ListPages& pages);

// Tasks | List All Clients (11855): the lists on screen, each to print.
void listAllClients(Session& session, ClientListQuestions& questions);

// Print Jobs | Client Lists (11878): the list chosen, printed.
void printClientLists(Session& session, ClientListQuestions& questions);

// Print Jobs | Print Current rates (11879): the rate card as one page,
// "Rates".
void printCurrentRates(Session& session);

} // namespace purrlodge

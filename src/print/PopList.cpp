#include "print/PopList.h"

#include <algorithm>

#include "print/PrintBuffer.h"
#include "print/PrintJobRunner.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::size_t lineWidth = 24;
constexpr std::size_t countColumn = 15;

void addPageHeading(PrintBuffer& buffer, int moreThanOnce)
{
    buffer.add(" ", "1, 4, 0, 1, n, 000, A");
    buffer.add(formatted("The %d cats whose name occurs more than once", moreThanOnce),
               "3, 4, 0, 1, n, 000, A");
    buffer.add(" ", "3, 4, 0, 1, n, 000, A");
}

} // namespace

std::string popListLine(const PopListName& name)
{
    std::string line(lineWidth, ' ');
    line.replace(0, std::min(name.name.size(), lineWidth), name.name, 0, lineWidth);
    const std::string count = std::to_string(name.count);
    if (line.size() < countColumn + count.size())
        line.resize(countColumn + count.size(), ' ');
    line.replace(countColumn, count.size(), count);
    return line;
}

int printPopList(PrintBuffer& buffer, std::span<const PopListName> names, int moreThanOnce,
                 PrintJobRunner& jobs)
{
    int printed = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i % popListNamesPerPage == 0)
            addPageHeading(buffer, moreThanOnce);
        buffer.add(popListLine(names[i]), "3b, 4, 0, 1, n, 000, A");
        if (i % popListNamesPerPage == popListNamesPerPage - 1 || i + 1 == names.size()) {
            if (jobs.run(popListTitle, false, buffer))
                ++printed;
            buffer.clear();
        }
    }
    return printed;
}

} // namespace purrlodge

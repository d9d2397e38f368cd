#pragma once

#include <QString>

namespace kestra {

// Shows a page of the help: "html\StructureTable.htm"; empty, or a page that there is not: the contents.
void showHelp(const QString& topic);

}  // namespace kestra

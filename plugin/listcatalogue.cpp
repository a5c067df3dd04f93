// SPDX-License-Identifier: BSD-3-Clause
// Prints the catalogue for the build, a line per control: class, header without extension, object name.

#include "catalogue.h"

#include <cstdio>

int main()
{
    for (const ControlRow &row : controlRows)
        std::printf("%s|%s|%s\n", row.className, row.includeFile, row.objectName);
}

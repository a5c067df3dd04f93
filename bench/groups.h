// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class DesignerHost;
class Report;

/// How much is measured.
struct Effort {
    int rounds; ///< per figure, A B A B
    bool quick; ///< leaves out what takes long and says so
};

// Each measures one group of figures and tells them to the report. The host has the plugin; there is only one
// in the process, because Designer initializes a plugin once and no second form editor gets its extensions.
void measureLists(DesignerHost &host, Report &report, const Effort &effort);
void measureMatrix(DesignerHost &host, Report &report, const Effort &effort);
void measureForms(DesignerHost &host, Report &report, const Effort &effort);
void measurePages(DesignerHost &host, Report &report, const Effort &effort);
void measureInstructions(DesignerHost &host, Report &report, const Effort &effort);

/// What this program does when it is started under callgrind to have one thing counted; see instructions.cpp.
int runProbe(const char *what);

#pragma once

struct PageCall;

/// PROGRESS: how far the flight has come, and what it will need.
void ProgressPage(PageCall& call);

/// POS REPORT: what a position report says.
void PosReportPage(PageCall& call);

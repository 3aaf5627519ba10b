#pragma once

struct PageCall;

/// STORED FLIGHT PLANS: the files of the folder, six a page; a line key loads one and goes to RTE.
void FlightPlansPage(PageCall& call);

/// Opens the page with the list as the folder now has it.
void OpenFlightPlans(PageCall& call);

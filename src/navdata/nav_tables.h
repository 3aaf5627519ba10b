#pragma once

/// Reads ints.txt, awys.txt, apts.txt, navs.txt and landmarks.txt into `nav_tables`, in that order, and
/// indexes them. A missing file leaves its table empty; a line that doesn't fit, or whose
/// place isn't on the globe, is passed over; `navdata_files` tells what came of each. Airports
/// whose longest runway is below `cfg.MinAptRwyLen` stay out of AirportTable, and so unknown to the entry
/// parser.
void LoadNavTables();

/// Reads the validity of the database from the ";AIRAC" line of navs.txt, fills the texts that show it, and
/// sets `nav.navdata_out_of_date` when the date of the machine's clock lies outside and
/// `cfg.CheckNavdataStatus` is 1. Without such a line the texts stay empty and nothing is set.
void CheckNavdataDates();

/// Tells the crew when the navigation data are out of date.
void TellNavdataOutOfDate();

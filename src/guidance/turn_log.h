#pragma once

/// One line of wptTurn.csv in the simulator's folder, with the setting LogWptTurnData, in flight and above
/// 100 kt only. The first one rewrites the file with its header.
void LogTurnData();

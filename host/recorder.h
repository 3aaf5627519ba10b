#pragma once

#include <fstream>
#include <initializer_list>
#include <string>

// What pilots and host do, tick by tick, written down as a scenario: played back by `tz900 run` it comes to
// the same pictures. The file is whole after every line, so that it also tells what went before a crash.

namespace host {

struct Recorder {
    std::string name;
    std::fstream file;
    std::string error;              // what ended the recording, already told; empty = it is good
    std::streampos calls_line = 0;  // where the line of the present run of calls begins
    long calls = 0;                 // in that line, 0 = none begun
    bool paused = false;            // they are of a paused host
};

/// Begins a recording in a new file. False with the reason, one being that the file exists.
bool OpenRecording(Recorder& recorder, const std::string& file, std::string& error);

/// Takes away the file of a recording whose flight couldn't start.
void DiscardRecording(Recorder& recorder);

// The next two do nothing without a recorder, nor once a write has failed: that is told at once.

/// Writes one command of the scenario language; words with blanks are quoted. One that the language can't
/// express becomes a comment.
void Record(Recorder* recorder, std::initializer_list<std::string> words);

/// Counts one pre-update call that is about to be made.
void RecordCall(Recorder* recorder, bool paused_frame);

}  // namespace host

// dstctl, the command-line tool: one file a verb. A new verb: its file, its declaration here, its row in main.cpp.
#pragma once

enum exit_status {
    exit_done = 0,
    exit_wrong = 1,   // the description is wrong
    exit_refused = 2, // bad usage, or a file that cannot be opened
};

// Each takes the words after the verb, with their count, and returns the exit status.
int verb_show(int count, char **words);

// Says how dstctl is called, on standard error; returns exit_refused.
int usage();

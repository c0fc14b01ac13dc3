// Timing two callables against each other on a machine that others use as well.
#pragma once

#include "contest.h"

namespace bench {

enum class Clock { thread, wall };

struct Effort {
  Clock clock;
  double batchSeconds;
  int patience;  // turns in a row that improve on neither side's best batch by a percent, and so end the race
  int rounds;    // races in fresh images, of which the one in the middle counts: much depends on which pages they get
};

// Seconds of one call.
struct Times {
  double ours;
  double peers;
};

// Whether the library reports success and, where results are to be equal, both sides write the same bytes.
bool agree(const Contest& contest);

// What memcpy needs for reading half as many bytes and writing them elsewhere.
double secondsOfCopy(size_t bytes, Effort effort);

// Lets both sides run in turns, in batches of about effort.batchSeconds, and takes the fastest batch of each: whatever
// else the machine does can only make a batch slower, and a slow minute meets both sides. Clock::thread is the
// processor time of the calling thread, which stands still while another program has the core; teams want Clock::wall.
Times race(const Contest& contest, Effort effort);

}  // namespace bench

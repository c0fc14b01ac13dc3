// The sections of the demo's page. A family of functions adds one: a file demo_<family>.cpp with its function, a line
// here, and a line in the table of demo.cpp.
#pragma once

#include "image.h"
#include "page.h"

namespace demo {

/// What a section works on, and where it shows its results.
struct Demo {
  const Image8u& rgba;   ///< the picture; four channels, at least 64 pixels wide and high
  const Image8u& photo;  ///< the same without alpha: three channels
  Page& page;
};

void demoMemory(const Demo& demo);
void demoStatus(const Demo& demo);
void demoChannels(const Demo& demo);
void demoFill(const Demo& demo);
void demoBorder(const Demo& demo);
void demoAdd(const Demo& demo);
void demoGain(const Demo& demo);
void demoCurves(const Demo& demo);
void demoBits(const Demo& demo);
void demoAlpha(const Demo& demo);
void demoThreshold(const Demo& demo);
void demoDepth(const Demo& demo);
void demoTables(const Demo& demo);
void demoPerceptual(const Demo& demo);
void demoStatistics(const Demo& demo);
void demoCounts(const Demo& demo);
void demoGenerate(const Demo& demo);
void demoLuma(const Demo& demo);
void demoTwist(const Demo& demo);
void demoVideo(const Demo& demo);
void demoPacked(const Demo& demo);
void demoLevels(const Demo& demo);
void demoMatch(const Demo& demo);
void demoBox(const Demo& demo);
void demoMorphology(const Demo& demo);
void demoRanks(const Demo& demo);
void demoEdges(const Demo& demo);
void demoKernels(const Demo& demo);
void demoFft(const Demo& demo);
void demoDct(const Demo& demo);
void demoWavelet(const Demo& demo);
void demoResize(const Demo& demo);
void demoBent(const Demo& demo);
void demoAffine(const Demo& demo);

}  // namespace demo

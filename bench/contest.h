// What a benchmark row is: the library against a peer, both doing the same work in the same memory.
//
// To add a family: write <family>_bench.cpp with a function that returns its table, declare that function at the end of
// this header, and name it in the list of main.cpp.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "vemi/vemi.h"

namespace bench {

struct Bytes {
  void* begin;
  size_t count;
};

struct Contest {
  std::function<VemiStatus()> ours;
  std::function<void()> peers;
  // What both must write alike, which is checked before they are timed. Empty where the peer does other work that only
  // bounds ours, as memset does for a fill with three different values.
  std::vector<Bytes> results;
};

struct Row {
  std::string name;
  std::string peer;
  std::function<Contest(VemiSize)> prepare;  // allocates and fills the images of one size
};

enum class Against { peers, ourselves };

struct Family {
  std::string name;
  std::vector<Row> rows;
  Against against = Against::peers;  // rows against ourselves show a cost; they count in no overall mean
};

Family copyFamily();
Family setFamily();
Family planesFamily();
Family channelsFamily();
Family maskedCopyFamily();
Family maskedSetFamily();
Family borderFamily();
Family addFamily();
Family addConstantFamily();
Family addScaledFamily();
Family subFamily();
Family mulFamily();
Family scalingFamily();
Family logicalFamily();
Family shiftFamily();
Family divideFamily();
Family divideByConstantFamily();
Family divideScalingFamily();
Family unaryFamily();
Family mulScaleFamily();
Family unaryScalingFamily();
Family alphaFamily();
Family reductionsFamily();
Family normFamily();
Family hardReductionsFamily();
Family thresholdFamily();
Family compareFamily();
Family convertFamily();
Family bitImageFamily();
Family lutFamily();
Family gammaFamily();
Family countsFamily();
Family noiseFamily();
Family generatedFamily();
Family perceptualFamily();
Family colorTwistFamily();
Family lumaChromaFamily();
Family packedPixelsFamily();
Family videoFamily();
Family swapChannelsFamily();
Family grayFamily();
Family yccFamily();
Family reduceBitsFamily();
Family qualityFamily();
Family matchFamily();
Family fftFamily();
Family dftFamily();
Family dctFamily();
Family waveletFamily();
Family packedSpectraFamily();
Family rowsFamily();
Family bentFamily();
Family boxFamily();
Family morphologyFamily();
Family fixedFilterFamily();
Family linearFilterFamily();
Family affineFamily();
Family ranksFamily();
Family resizeFamily();

}  // namespace bench

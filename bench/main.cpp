// Times the library against its peers, single-threaded, or its teams against its single threads, and prints how many
// times as fast it is.

#include <omp.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <optional>
#include <tuple>

#include "contest.h"
#include "image.h"
#include "peers.h"
#include "race.h"
#include "transform_errors.h"

namespace bench {
namespace {

using FamilyTable = Family (*)();
constexpr FamilyTable families[] = {
    copyFamily,          setFamily,          planesFamily,       channelsFamily,     maskedCopyFamily,
    maskedSetFamily,     borderFamily,       addFamily,          addConstantFamily,  addScaledFamily,
    subFamily,           mulFamily,          scalingFamily,      divideFamily,       divideByConstantFamily,
    divideScalingFamily, unaryFamily,        mulScaleFamily,     unaryScalingFamily, logicalFamily,
    shiftFamily,         alphaFamily,        reductionsFamily,   normFamily,         hardReductionsFamily,
    thresholdFamily,     compareFamily,      convertFamily,      bitImageFamily,     lutFamily,
    gammaFamily,         countsFamily,       noiseFamily,        generatedFamily,    perceptualFamily,
    colorTwistFamily,    videoFamily,        swapChannelsFamily, grayFamily,         yccFamily,
    packedPixelsFamily,  boxFamily,          morphologyFamily,   reduceBitsFamily,   qualityFamily,
    fixedFilterFamily,   linearFilterFamily, lumaChromaFamily,   fftFamily,          waveletFamily,
    packedSpectraFamily, rowsFamily,         ranksFamily,        dctFamily,          resizeFamily,
    dftFamily,           bentFamily,         affineFamily,       matchFamily,
};

constexpr const char* usage =
    "usage: vemi_bench [--quick] [--team THREADS] [--size WIDTHxHEIGHT]... [WORD]...\n"
    "       vemi_bench --errors\n"
    "  Runs the rows whose family, name or peer contains all of the WORDs; without one, all rows.\n"
    "  --size   an image size; default 64x64, 320x240, 1920x1080 and 4096x4096\n"
    "  --quick  one round instead of three: rougher figures in a third of the time\n"
    "  --team   the library with a team of so many threads against itself in one thread, by the clock on the wall\n"
    "  --errors the errors of transforms beside those of FFTW's, instead of any times\n";

struct Options {
  std::vector<VemiSize> sizes;
  std::vector<std::string> words;
  Effort effort = {.clock = Clock::thread, .batchSeconds = 0.001, .patience = 5, .rounds = 3};
  int team = 0;  // 0: against peers
};

std::optional<Options> parse(int count, char** arguments) {
  Options options;
  for (int i = 1; i < count; ++i) {
    const std::string argument = arguments[i];
    if (argument == "--quick") {
      options.effort.rounds = 1;
    } else if (argument == "--team" && i + 1 < count) {
      if (std::sscanf(arguments[++i], "%d", &options.team) != 1 || options.team < 1) return std::nullopt;
      options.effort.clock = Clock::wall;
    } else if (argument == "--size" && i + 1 < count) {
      VemiSize size{};
      if (std::sscanf(arguments[++i], "%dx%d", &size.width, &size.height) != 2) return std::nullopt;
      if (size.width < 1 || size.height < 1) return std::nullopt;
      options.sizes.push_back(size);
    } else if (argument.starts_with("-")) {
      return std::nullopt;
    } else {
      options.words.push_back(argument);
    }
  }
  if (options.sizes.empty()) options.sizes = {{64, 64}, {320, 240}, {1920, 1080}, {4096, 4096}};
  return options;
}

bool selected(const Family& family, const Row& row, const std::vector<std::string>& words) {
  const std::string text = family.name + " " + row.name + " " + row.peer;
  for (const std::string& word : words) {
    if (text.find(word) == std::string::npos) return false;
  }
  return true;
}

std::string sizeName(VemiSize size) { return std::to_string(size.width) + "x" + std::to_string(size.height); }

// Each function once, with a team against itself in one thread.
Family byTeams(const Family& family, int team) {
  Family teams = {family.name, {}, family.against};
  for (const Row& row : family.rows) {
    const auto isSame = [&](const Row& other) { return other.name == row.name; };  // against another peer
    if (std::ranges::any_of(teams.rows, isSame)) continue;
    teams.rows.push_back({row.name, "one thread", [team, prepare = row.prepare](VemiSize size) -> Contest {
                            const Contest contest = prepare(size);
                            const auto by = [call = contest.ours](int threads) {
                              omp_set_num_threads(threads);
                              return call();
                            };
                            return {[=] { return by(team); }, [=] { by(1); }, contest.results};
                          }});
  }
  return teams;
}

// The rows that the options select, as they are to be run.
Family chosen(Family family, const Options& options) {
  std::erase_if(family.rows, [&](const Row& row) { return !selected(family, row, options.words); });
  return options.team > 0 ? byTeams(family, options.team) : family;
}

// Geometric means of ratios, one for each size.
class Means {
 public:
  explicit Means(size_t sizes) : logSums_(sizes) {}

  void add(const std::vector<double>& ratios) {
    for (size_t i = 0; i < ratios.size(); ++i) logSums_[i] += std::log(ratios[i]);
    ++rows_;
  }

  void print(const std::string& title) const {
    if (rows_ == 0) return;
    std::printf("%-48s", title.c_str());
    for (const double logSum : logSums_) std::printf("%7.2f              ", std::exp(logSum / rows_));
    std::printf("\n");
  }

 private:
  std::vector<double> logSums_;
  int rows_ = 0;
};

class Report {
 public:
  explicit Report(const Options& options) : options_(options), overall_(options.sizes.size()) {}

  void run(const Family& family) {
    Means means(options_.sizes.size());
    for (const Row& row : family.rows) {
      if (!headed_) printHead();
      const std::vector<double> ratios = run(row, family.against);
      means.add(ratios);
      if (family.against == Against::peers) overall_.add(ratios);
    }
    means.print((family.against == Against::peers ? "= " : "- ") + family.name);
  }

  // Returns whether every row was a fair one.
  bool finish() {
    overall_.print(options_.team > 0 ? "== all families by teams" : "== all families against peers");
    std::sort(slower_.begin(), slower_.end());
    printSlower("Below 1.0 in what memcpy needs for as much memory, or hardly more", 90, 1e9);
    printSlower("Below 1.0 otherwise", 0, 90);
    if (!unfair_.empty()) std::printf("\nA failed call, or not the same result on both sides:\n");
    for (const std::string& line : unfair_) std::printf("         %s\n", line.c_str());
    return unfair_.empty();
  }

 private:
  // Those with a share of the speed of memcpy from `low` to below `high`.
  void printSlower(const char* title, double low, double high) const {
    std::printf("\n%s:\n", title);
    for (const auto& [ratio, share, line] : slower_) {
      if (share >= low && share < high) std::printf("%7.2f%7.0f%%  %s\n", ratio, share, line.c_str());
    }
  }

  void printHead() {
    std::printf("Each column: %s time / our time, our megapixels a second, our share of the speed of memcpy.\n",
                options_.team > 0 ? "one thread's" : "peer's");
    std::printf("%-27s%-21s", "row", "peer");
    for (const VemiSize size : options_.sizes) std::printf("%19s  ", sizeName(size).c_str());
    std::printf("\n");
    headed_ = true;
  }

  std::vector<double> run(const Row& row, Against against) {
    std::printf("%-27s%-21s", row.name.c_str(), row.peer.c_str());
    std::vector<double> ratios;
    for (const VemiSize size : options_.sizes) {
      const std::string line = sizeName(size) + "  " + row.name + ", " + row.peer;
      const Times times = medianOfRaces(row, size, line);
      ratios.push_back(ratioOf(times));
      const double share = 100 * secondsOfCopy(bytesMoved) / times.ours;
      std::printf("%7.2f%7.0f%4.0f%%  ", ratios.back(), 1e-6 * size.width * size.height / times.ours, share);
      std::fflush(stdout);
      if (against == Against::peers && ratios.back() < 1) slower_.push_back({ratios.back(), share, line});
    }
    std::printf("\n");
    return ratios;
  }

  static double ratioOf(const Times& times) { return times.peers / times.ours; }

  Times medianOfRaces(const Row& row, VemiSize size, const std::string& line) {
    std::vector<Times> races;
    for (int round = 0; round < options_.effort.rounds; ++round) {
      bytesMoved = 0;
      const Contest contest = row.prepare(size);
      if (round == 0 && !agree(contest)) unfair_.push_back(line);
      races.push_back(race(contest, options_.effort));
    }
    std::ranges::sort(races, {}, ratioOf);
    return races[races.size() / 2];
  }

  // Rows that move as much share one measurement.
  double secondsOfCopy(size_t bytes) {
    const auto [at, isNew] = copySeconds_.try_emplace(bytes);
    if (isNew) at->second = bench::secondsOfCopy(bytes, options_.effort);
    return at->second;
  }

  const Options& options_;
  std::map<size_t, double> copySeconds_;
  Means overall_;
  bool headed_ = false;
  std::vector<std::tuple<double, double, std::string>> slower_;  // ratio, share, line
  std::vector<std::string> unfair_;
};

int run(const Options& options) {
  omp_set_num_threads(1);
#ifdef VEMI_BENCH_OPENCV
  cv::setNumThreads(1);
#endif
  Report report(options);
  for (const FamilyTable family : families) report.run(chosen(family(), options));
  return report.finish() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace bench

int main(int count, char** arguments) {
  if (count == 2 && std::string(arguments[1]) == "--errors") {
    bench::printTransformErrors();
    return EXIT_SUCCESS;
  }
  const std::optional<bench::Options> options = bench::parse(count, arguments);
  if (!options) {
    std::fputs(bench::usage, stderr);
    return EXIT_FAILURE;
  }
  try {
    return bench::run(*options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "\nvemi_bench: %s\n", error.what());
    return EXIT_FAILURE;
  }
}

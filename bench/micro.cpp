// micro [WORD...] runs the small timings whose names hold one of the words, or all, and prints one
// line for each: its name, a tab, the figure, a tab, its unit.
#include "bench/micro.h"

#include <cstdio>
#include <iterator>
#include <span>

namespace varnel::bench {
namespace {

void Run(std::span<char*> words) {
  std::vector<Probe> probes = EngineProbes();
  std::ranges::move(NotesProbes(), std::back_inserter(probes));
  std::ranges::move(PageProbes(), std::back_inserter(probes));
  std::ranges::move(BoardProbes(), std::back_inserter(probes));
#ifdef _WIN32
  std::ranges::move(PlatformProbes(), std::back_inserter(probes));
  std::ranges::move(BoardPlatformProbes(), std::back_inserter(probes));
  std::ranges::move(FindPlatformProbes(), std::back_inserter(probes));
  std::ranges::move(NotesPlatformProbes(), std::back_inserter(probes));
  std::ranges::move(PagePlatformProbes(), std::back_inserter(probes));
#endif
  for (const Probe& probe : probes) {
    const bool wanted = words.empty() || std::ranges::any_of(words, [&](const char* word) {
                          return probe.name.find(word) != std::string::npos;
                        });
    if (!wanted) continue;
    std::printf("%s\t%.4g\t%s\n", probe.name.c_str(), probe.measure(), probe.unit.c_str());
    std::fflush(stdout);
  }
}

}  // namespace
}  // namespace varnel::bench

int main(int count, char** words) {
  varnel::bench::Run({words + 1, words + count});
}

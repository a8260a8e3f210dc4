#include <cstdio>

#include <solvane/solvane.hpp>

int main() {
  const auto solvane = std::make_shared<solvane::Solvane>();
  for (int i = 0; i < 2000; ++i) {
    const solvane::Track track{std::to_string(i), "So What",    545.0,  1,           "Miles Davis",
                               "Kind of Blue",    std::nullopt, "Jazz", std::nullopt};
    solvane->indexTracks(std::vector<solvane::Track>(100, track));
  }
  std::puts("left main");
}

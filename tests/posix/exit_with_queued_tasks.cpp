#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

#include <solvane/solvane.hpp>

// Returns from main while some tasks run and block, and others wait behind them for ever.
int main() {
  const auto solvane = std::make_shared<solvane::Solvane>();
  static std::atomic<unsigned> blocked = 0;
  for (int i = 0; i < 200; ++i) {
    const solvane::Artist artist{std::to_string(i), "Miles Davis", std::nullopt, "Jazz",
                                 std::nullopt};
    solvane->indexArtist(artist, [](const std::string&) {
      ++blocked;
      blocked.notify_one();
      while (true) std::this_thread::sleep_for(std::chrono::hours{1});
    });
    solvane->indexArtists(std::vector<solvane::Artist>(100, artist));
  }
  blocked.wait(0);
  std::puts("left main");
}

#include "CommandLine.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <sstream>
#include <utility>

#include <solvane/version.hpp>

#include <CLI/CLI.hpp>

#include "IndexPath.hpp"
#include "Printable.hpp"

namespace solvane::tool {
namespace {

constexpr const char* footer = R"(
Examples:
  solvane index catalogue.jsonl          publish a catalogue
  export-library | solvane index -       publish what another program writes
  solvane search so wh                   find as you type
  solvane search --domain artists miles  find artists only
  solvane remove track/42 album/3        take two items out of the index
  solvane clear playlists                take all playlists out of it

Exit codes:
  0  done
  1  nothing found, or nothing there to remove
  2  the command line is wrong
  3  a catalogue has errors or cannot be read; its good lines are published with --keep-going only
  4  the index cannot be opened, read or written
  5  the result cannot be written to the standard output)";

/// The parser takes "[a,b]" as the list of a and b. No argument contains a zero byte, so one at the
/// end hides the bracket from it.
std::string hideBrackets(std::string argument) {
  if (argument.starts_with('[') && argument.ends_with(']')) argument += '\0';
  return argument;
}

std::string showBrackets(std::string argument) {
  if (argument.ends_with('\0')) argument.pop_back();
  return argument;
}

/// Adds to `command` what it takes. Texts go past the parser's conversions, which know lists and
/// empty values of their own.
class Arguments {
 public:
  explicit Arguments(CLI::App& command) : _command(command) {}

  void texts(const char* name, std::vector<std::string>& into, const char* help) {
    _command
        .add_option(
            name,
            [&into](const CLI::results_t& given) {
              std::ranges::transform(given, std::back_inserter(into), &showBrackets);
              return true;
            },
            help)
        ->required()
        ->expected(CLI::detail::expected_max_vector_size)
        ->allow_extra_args()
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }

  template <class Text>
  CLI::Option* text(const char* name, Text& into, const char* help) {
    return _command.add_option(
        name,
        [&into](const CLI::results_t& given) {
          into = showBrackets(given.front());
          return true;
        },
        help);
  }

  void count(const char* name, std::size_t& into, std::size_t least, const char* help) {
    constexpr std::size_t most = 1'000'000'000;
    _command.add_option(name, into, help)
        ->check(CLI::Range(least, most))
        ->capture_default_str()
        ->type_name("N");
  }

  void flag(const char* name, bool& into, const char* help) { _command.add_flag(name, into, help); }

  void domain(std::optional<std::string>& into) {
    text("--domain", into, "Only items of this domain, such as artists")->type_name("DOMAIN");
  }

  void common(CommonRequest& request, std::optional<std::string>& index) {
    text("--index", index, "The index file; by default solvane/index.db in $XDG_DATA_HOME")
        ->type_name("PATH");
    flag("--json", request.json, "Write the result as JSON");
  }

 private:
  CLI::App& _command;
};

/// The command line's parser, and the requests that it fills.
class Parser {
 public:
  Parser() : _app("Publishes a music catalogue to the on-device search index, and searches it.") {
    _app.name("solvane");
    _app.footer(footer);
    _app.require_subcommand(1);
    std::ostringstream version;
    version << "solvane " << SOLVANE_VERSION_MAJOR << '.' << SOLVANE_VERSION_MINOR << '.'
            << SOLVANE_VERSION_PATCH;
    _app.set_version_flag("--version", version.str());
    addIndex();
    addSearch();
    addRemove();
    addClear();
    addList();
    addShow();
    addCommand(_stats, "stats", "Tell how many items the index has, and until when");
  }

  std::variant<Request, ExitCode> parse(std::vector<std::string> arguments, std::ostream& out,
                                        std::ostream& err) {
    if (const auto unknown = findUnknownCommand(arguments)) return refuse(*unknown, err);
    std::ranges::transform(arguments, arguments.begin(), &hideBrackets);
    std::ranges::reverse(arguments);
    try {
      _app.parse(std::move(arguments));
    } catch (const CLI::Success& success) {
      _app.exit(success, out, err);
      return ExitCode::done;
    } catch (const CLI::Error& error) {
      return refuse(error.what(), err);
    }
    return choose(err);
  }

 private:
  /// The parser itself would only say that a command is missing.
  [[nodiscard]] std::optional<std::string> findUnknownCommand(
      const std::vector<std::string>& arguments) const {
    if (arguments.empty()) return "Say what to do, such as `solvane search WORDS`.";
    const auto& name = arguments.front();
    const auto named = [&](const CLI::App* command) { return command->get_name() == name; };
    if (name.starts_with('-') || !_app.get_subcommands(named).empty()) return std::nullopt;
    return "There is no command \"" + name + "\".";
  }

  static ExitCode refuse(const std::string& why, std::ostream& err) {
    err << "solvane: " << printable(why) << "\nRun `solvane --help` for what there is.\n";
    return ExitCode::usage;
  }

  Arguments addCommand(CommonRequest& request, const char* name, const char* help) {
    auto* command = _app.add_subcommand(name, help);
    command->footer("\nExamples and exit codes: solvane --help");
    Arguments arguments{*command};
    arguments.common(request, _index);
    return arguments;
  }

  void addIndex() {
    auto arguments =
        addCommand(_indexing, "index", "Publish catalogues: JSON Lines, or - for stdin");
    arguments.texts("CATALOGUE", _indexing.catalogues, "Catalogue files");
    arguments.flag("--keep-going", _indexing.keepGoing, "Publish the good lines of bad catalogues");
    arguments.text("--app-name", _indexing.appName, "The app's name in what is shown of an item")
        ->type_name("NAME");
  }

  void addSearch() {
    auto arguments = addCommand(_search, "search", "Find items; the last word may be unfinished");
    arguments.texts("WORDS", _search.words, "What to look for; all words must match");
    arguments.domain(_search.domain);
    arguments.count("--limit", _search.limit, 1, "Show at most so many");
  }

  void addRemove() {
    auto arguments = addCommand(_remove, "remove", "Take items out of the index");
    arguments.texts("ID", _remove.identifiers, "The items' identifiers");
    arguments.text("--kind", _remove.kind, "Use this kind's operation, instead of each item's own")
        ->check(CLI::IsMember({"track", "artist", "album", "playlist"}));
  }

  void addClear() {
    auto arguments = addCommand(_clear, "clear", "Take whole domains out of the index");
    arguments.texts("DOMAIN", _clear.domains, "The domains, such as tracks or playlists");
  }

  void addList() {
    auto arguments = addCommand(_list, "list", "List items by domain, in the order of their entry");
    arguments.domain(_list.domain);
    arguments.count("--limit", _list.limit, 1, "Show at most so many");
    arguments.count("--offset", _list.offset, 0, "Leave out the first so many");
  }

  void addShow() {
    auto arguments = addCommand(_show, "show", "Show everything the index stores of an item");
    arguments.text("ID", _show.identifier, "The item's identifier")->required();
  }

  /// The request of the command that was named, with its index.
  std::variant<Request, ExitCode> choose(std::ostream& err) {
    const auto path = _index ? std::optional<std::filesystem::path>{*_index} : defaultIndexPath();
    if (!path || path->empty()) return refuse("Say where the index is, with --index PATH.", err);
    const auto name = _app.get_subcommands().front()->get_name();
    if (name == "index") return finish(_indexing, *path);
    if (name == "search") return finish(_search, *path);
    if (name == "remove") return finish(_remove, *path);
    if (name == "clear") return finish(_clear, *path);
    if (name == "list") return finish(_list, *path);
    if (name == "show") return finish(_show, *path);
    return finish(_stats, *path);
  }

  template <class Chosen>
  static Request finish(Chosen& request, const std::filesystem::path& index) {
    request.index = index;
    return std::move(request);
  }

  CLI::App _app;
  std::optional<std::string> _index;
  IndexRequest _indexing;
  SearchRequest _search;
  RemoveRequest _remove;
  ClearRequest _clear;
  ListRequest _list;
  ShowRequest _show;
  StatsRequest _stats;
};

}  // namespace

std::variant<Request, ExitCode> parseCommandLine(std::vector<std::string> arguments,
                                                 std::ostream& out, std::ostream& err) {
  return Parser{}.parse(std::move(arguments), out, err);
}

}  // namespace solvane::tool

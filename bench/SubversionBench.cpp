// The Subversion provider and the command `svn` at the same work, on a local repository and on svnserve behind a proxy that
// delays by 20 ms each way.
//
//   tools/build release subversion_bench && build/release/bin/subversion_bench [FILES...]
//
// Prints a table: the best of several runs in milliseconds, on projects of 250, 4,000 and 65,536 files.
#include <svn_config.h>
#include <svn_hash.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <stdexcept>

#include "subversion/Developer.h"
#include "subversion/Server.h"

using namespace kestrel;
using namespace kestrel::svnscc;

namespace {

constexpr std::size_t kFilesInFolder = 250;
constexpr std::size_t kBatch = 1000;

using Action = std::function<void()>;
const Action kNothing = [] {};

/// The best of several runs of `action`, in milliseconds; `prepare` and `undo` are not measured.
double Best(const Action& prepare, const Action& action, const Action& undo) {
  constexpr int kRuns = 5;
  double best = std::numeric_limits<double>::max();
  for (int i = 0; i < kRuns; ++i) {
    prepare();
    const auto begin = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    best = std::min(best, time.count());
    undo();
  }
  return best;
}

void Require(scc::Long result, const TDeveloper& developer) {
  if (result != scc::SCC_OK) throw std::runtime_error(developer.Said());
}

void Run(const std::string& command) {
  if (std::system(command.c_str()) != 0) throw std::runtime_error(command);
}

/// Lets Ann in at `url` without a question.
void StoreLogin(const std::string& url, const std::string& realm) {
  const Pool pool;
  const char* folder = std::getenv("SUBVERSION_SCC_CONFIG_DIR");
  Check(svn_config_ensure(folder, pool));
  apr_hash_t* login = apr_hash_make(pool);
  for (const auto& [key, value] :
       {std::pair("username", "ann"), {"password", "secret"}, {"passtype", "simple"}})
    svn_hash_sets(login, key, svn_string_create(value, pool));
  Check(svn_config_write_auth_data(login, SVN_AUTH_CRED_SIMPLE, ("<" + url + "> " + realm).c_str(), folder,
                                   pool));
}

class DelayProxy {
 public:
  explicit DelayProxy(int port) {
    std::array<int, 2> input, output;
    if (pipe(input.data()) != 0 || pipe(output.data()) != 0) throw std::runtime_error("no pipe");
    const std::string command = std::string(DELAY_PROXY) + " " + std::to_string(port) + " 20 <&" +
                                std::to_string(input[0]) + " >&" + std::to_string(output[1]) + " " +
                                std::to_string(input[1]) + ">&- &";
    Run(command);
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    std::array<char, 16> text{};
    if (read(output[0], text.data(), text.size() - 1) <= 0) throw std::runtime_error("no proxy");
    url_ = "svn://127.0.0.1:" + std::to_string(std::atoi(text.data()));
  }
  DelayProxy(const DelayProxy&) = delete;
  DelayProxy& operator=(const DelayProxy&) = delete;
  ~DelayProxy() { close(input_); }
  const std::string& Url() const { return url_; }

 private:
  int input_ = -1;
  std::string url_;
};

/// A project at `url`: the provider's working copy, and one of `svn`.
class Comparison {
 public:
  Comparison(const char* way, const std::string& url, std::size_t count) : way_(way), count_(count) {
    for (std::size_t i = 0; i < count; ++i)
      names_.push_back("d" + std::to_string(i / kFilesInFolder) + "/unit" + std::to_string(i) + ".pas");
    batch_.assign(names_.begin(), names_.begin() + static_cast<std::ptrdiff_t>(std::min(count, kBatch)));
    for (const auto& name : batch_) targets_ += name + "\n";
    plain_.Write("svn/targets", targets_);
    const std::string folder = plain_ / "svn/work";
    svn_ = "cd '" + folder + "' 2>/dev/null; svn --non-interactive --username ann --config-dir '" +
           std::getenv("SUBVERSION_SCC_CONFIG_DIR") + "' ";
    Require(ann_.Open(url, "project"), ann_);
    Require(ann_.GetEverything(), ann_);
    Run(svn_ + "checkout -q " + url + "/project '" + folder + "'");
  }

  void Batch() {
    const std::string targets = " -q --targets ../targets";
    Row("check-out of", batch_.size(), Best(kNothing, Svn("lock" + targets), Svn("unlock" + targets)),
        Best(
            kNothing, [&] { Require(ann_.CheckOut(batch_), ann_); },
            [&] { Require(ann_.Undo(batch_), ann_); }));
    const auto edit = [&](const Action& lock, const Action& write) {
      return [=] {
        lock();
        write();
      };
    };
    int edition = 0;
    const auto text = [&] { return "edition " + std::to_string(++edition) + "\n"; };
    Row("check-in of", batch_.size(),
        Best(edit(Svn("lock" + targets),
                  [&] {
                    for (const auto& name : batch_) plain_.Write("svn/work/" + name, text());
                  }),
             Svn("commit -m x" + targets), kNothing),
        Best(
            edit(
                [&] {
                  Require(ann_.GetEverything(), ann_);
                  Require(ann_.CheckOut(batch_), ann_);
                },
                [&] {
                  for (const auto& name : batch_) ann_.Write(name, text());
                }),
            [&] { Require(ann_.CheckIn(batch_), ann_); }, kNothing));
  }

  void Queries() {
    const double status = Best(kNothing, Svn("status -u -v >/dev/null"), kNothing);
    Row("status of", count_, status, Best([] { sleep(kForget); }, [&] { ann_.Statuses(names_); }, kNothing));
    Row("menu to file list,", count_, status,
        Best([] { sleep(kForget); },
             [&] {
               ann_.Statuses({names_.front()});
               ann_.Populate(scc::SCC_COMMAND_CHECKOUT, {names_.front()});
               ann_.Statuses(names_);
             },
             kNothing));
  }

  void Get() {
    Row("get of one of", count_, Best(kNothing, Svn("update -q " + names_.front()), kNothing),
        Best(
            kNothing, [&] { Require(ann_.Get({names_.front()}), ann_); }, kNothing));
  }

 private:
  static constexpr unsigned kForget = 3;  // seconds after which the provider asks the server again

  Action Svn(const std::string& command) const {
    return [line = svn_ + command] { Run(line); };
  }
  void Row(const char* what, std::size_t count, double svn, double provider) const {
    std::printf("| %s | %s %zu files | %.0f ms | %.0f ms | %.2f |\n", way_, what, count, svn, provider,
                provider / svn);
    std::fflush(stdout);
  }

  const char* way_;
  std::size_t count_;
  std::vector<std::string> names_;
  std::vector<std::string> batch_;
  std::string targets_;
  TTemporaryFolder plain_;
  std::string svn_;
  TDeveloper ann_{"ann"};
};

/// Puts a project of that many files into the repository, as the provider would.
void Import(const TTestRepository& repository, std::size_t count) {
  const TTemporaryFolder source;
  for (std::size_t i = 0; i < count; ++i)
    source.Write("project/d" + std::to_string(i / kFilesInFolder) + "/unit" + std::to_string(i) + ".pas",
                 "unit\n");
  Run("svn import -q -m x --config-option config:miscellany:enable-auto-props=yes --config-option "
      "'config:auto-props:*.pas=svn:needs-lock=*' '" +
      (source / "project") + "' " + repository.Url() + "/project");
}

void Compare(std::size_t count) {
  const TTestRepository repository;
  repository.SetLimit("remember-seconds", 2);
  Import(repository, count);
  const TServer server(repository);
  const DelayProxy proxy(server.Port());
  StoreLogin(proxy.Url(), "tests");
  const struct {
    const char* Name;
    const std::string& Url;
  } ways[] = {{"file://", repository.Url()}, {"svnserve, 20 ms each way", proxy.Url()}};
  for (const auto& way : ways) {
    Comparison comparison(way.Name, way.Url, count);
    comparison.Get();
    comparison.Queries();
    if (count >= kBatch) comparison.Batch();
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::puts("| repository | | `svn` | SubversionScc | ratio |\n|---|---|---|---|---|");
  std::vector<std::size_t> counts;
  for (int i = 1; i < argc; ++i) counts.push_back(std::stoul(argv[i]));
  if (counts.empty()) counts = {250, 4000, 65536};
  for (const auto count : counts) Compare(count);
}

// svnserve, for what a local repository cannot do.
#pragma once

#include <arpa/inet.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>

#include "TestRepository.h"
#include "support/Testing.h"

namespace kestrel::svnscc {

/// A port on the loopback interface that accepts connections and never answers, or no longer accepts any.
class TListener {
 public:
  explicit TListener(bool isFull = false) {
    sockaddr_in address = Address(0);
    socklen_t size = sizeof address;
    EXPECT_EQ(0, bind(sockets_[0], reinterpret_cast<sockaddr*>(&address), size));
    EXPECT_EQ(0, getsockname(sockets_[0], reinterpret_cast<sockaddr*>(&address), &size));
    port_ = ntohs(address.sin_port);
    EXPECT_EQ(0, listen(sockets_[0], 0));
    if (isFull) connect(sockets_[1], reinterpret_cast<sockaddr*>(&address), size);
  }
  TListener(const TListener&) = delete;
  TListener& operator=(const TListener&) = delete;
  ~TListener() {
    for (const int number : sockets_) close(number);
  }
  int Port() const { return port_; }
  std::string Url() const { return "svn://127.0.0.1:" + std::to_string(port_); }
  static sockaddr_in Address(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
  }

 private:
  const std::array<int, 2> sockets_{socket(AF_INET, SOCK_STREAM, 0), socket(AF_INET, SOCK_STREAM, 0)};
  int port_ = 0;
};

/// svnserve on the loopback interface.
class TServer {
 public:
  /// `anonymous` is what users may do without a password.
  explicit TServer(const TTestRepository& repository, const std::string& anonymous = "none")
      : port_(std::to_string(TListener().Port())), log_(repository.Folder() + "/served.log") {
    std::ofstream(repository.Folder() + "/conf/svnserve.conf")
        << "[general]\nanon-access = " + anonymous +
               "\nauth-access = write\npassword-db = passwd\nrealm = tests\n";
    std::ofstream(repository.Folder() + "/conf/passwd") << "[users]\nann = secret\nbob = other\n";
    std::array<std::string, 7> words{"svnserve",
                                     "--daemon",
                                     "--foreground",
                                     "--listen-host=127.0.0.1",
                                     "--listen-port=" + port_,
                                     "--root=" + repository.Folder(),
                                     "--log-file=" + log_};
    std::vector<char*> arguments;
    for (auto& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    if (posix_spawnp(&pid_, "svnserve", nullptr, nullptr, arguments.data(), environ) != 0)
      throw std::runtime_error("svnserve does not start");
    for (int i = 0; i < 1000 && !Connects(); ++i) usleep(10000);
  }
  TServer(const TServer&) = delete;
  TServer& operator=(const TServer&) = delete;
  ~TServer() {
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
  }
  int Port() const { return std::stoi(port_); }
  std::string Url() const { return "svn://127.0.0.1:" + port_; }
  /// How many connections were used.
  std::size_t Connections() const {
    std::ifstream file(log_);
    std::size_t count = 0;
    for (std::string line; std::getline(file, line);) count += line.find(" open ") != std::string::npos;
    return count;
  }

 private:
  bool Connects() const {
    const int caller = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = TListener::Address(std::stoi(port_));
    const bool connected = connect(caller, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    close(caller);
    return connected;
  }

  std::string port_;
  std::string log_;
  pid_t pid_ = 0;
};

}  // namespace kestrel::svnscc

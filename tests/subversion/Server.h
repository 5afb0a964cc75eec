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

/// svnserve on the loopback interface: nobody gets in without a password.
class TServer {
 public:
  explicit TServer(const TTestRepository& repository) : port_(std::to_string(FreePort())) {
    std::ofstream(repository.Folder() + "/conf/svnserve.conf")
        << "[general]\nanon-access = none\nauth-access = write\npassword-db = passwd\n";
    std::ofstream(repository.Folder() + "/conf/passwd") << "[users]\nann = secret\nbob = other\n";
    std::array<std::string, 6> words{"svnserve",
                                     "--daemon",
                                     "--foreground",
                                     "--listen-host=127.0.0.1",
                                     "--listen-port=" + port_,
                                     "--root=" + repository.Folder()};
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
  std::string Url() const { return "svn://127.0.0.1:" + port_; }

 private:
  static sockaddr_in Address(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
  }
  static int FreePort() {
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = Address(0);
    socklen_t size = sizeof address;
    EXPECT_EQ(0, bind(listener, reinterpret_cast<sockaddr*>(&address), size));
    EXPECT_EQ(0, getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size));
    close(listener);
    return ntohs(address.sin_port);
  }
  bool Connects() const {
    const int caller = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = Address(std::stoi(port_));
    const bool connected = connect(caller, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    close(caller);
    return connected;
  }

  std::string port_;
  pid_t pid_ = 0;
};

}  // namespace kestrel::svnscc

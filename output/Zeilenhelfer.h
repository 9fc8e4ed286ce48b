// Shares work among the cores: its parts are taken as they come, also by the caller, and the call returns
// when all are done.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace zrw {

class Zeilenhelfer {
  public:
    /// @param helfer threads beside the caller; they begin with the first call
    explicit Zeilenhelfer(unsigned helfer) : helfer_(helfer) {}
    ~Zeilenhelfer();
    Zeilenhelfer(const Zeilenhelfer&) = delete;
    Zeilenhelfer& operator=(const Zeilenhelfer&) = delete;

    /// One for each core beside this one, few enough for small pictures.
    [[nodiscard]] static unsigned HelferHier();
    [[nodiscard]] unsigned Helfer() const { return helfer_; }

    /// Calls `tun(0)` to `tun(anzahl - 1)`, in any order and at the same time. @param tun must not throw
    void TueTeile(std::size_t anzahl, const std::function<void(std::size_t)>& tun);

  private:
    void BeginneHelfer();
    void Hilf();
    void NimmTeile(std::unique_lock<std::mutex>& schloss);

    unsigned helfer_;
    std::vector<std::thread> faeden_;
    std::mutex mutex_;
    std::condition_variable arbeit_;
    std::condition_variable getan_;
    // Under the lock: what is to be done, the next part of it, and how many are not finished.
    const std::function<void(std::size_t)>* tun_ = nullptr;
    std::size_t anzahl_ = 0;
    std::size_t naechster_ = 0;
    std::size_t offen_ = 0;
    bool ende_ = false;
};

}  // namespace zrw

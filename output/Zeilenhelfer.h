// Shares work among the cores: its parts are taken as they come, also by the caller.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace zrw {

class Zeilenhelfer {
  public:
    /// Does the part of a number. Must not throw.
    using Arbeit = std::function<void(std::size_t)>;

    /// @param helfer threads beside the caller; they begin with the first part
    explicit Zeilenhelfer(unsigned helfer) : helfer_(helfer) {}
    ~Zeilenhelfer();
    Zeilenhelfer(const Zeilenhelfer&) = delete;
    Zeilenhelfer& operator=(const Zeilenhelfer&) = delete;

    /// One for each core beside this one, few enough for small pictures.
    [[nodiscard]] static unsigned HelferHier();
    [[nodiscard]] unsigned Helfer() const { return helfer_; }

    /// Calls `tun(0)` to `tun(anzahl - 1)`, in any order and at the same time, and returns when all are done.
    void TueTeile(std::size_t anzahl, const Arbeit& tun);

    // Parts that come one by one, from one thread, which goes on meanwhile.
    /// @param tun outlives the next `TueAlle`; called at once where there are no helpers
    void GibTeil(std::size_t teil, const Arbeit& tun);
    /// Does the part that waits longest; where none waits, until a helper has done another one.
    void TueEinen();
    /// Until none waits and none is being done.
    void TueAlle();

  private:
    struct Teil {
        std::size_t nummer;
        const Arbeit* tun;
    };
    void BeginneHelfer();
    void Hilf();
    void TueErsten(std::unique_lock<std::mutex>& schloss);

    unsigned helfer_;
    std::vector<std::thread> faeden_;
    std::mutex mutex_;
    std::condition_variable arbeit_;
    std::condition_variable getan_;
    // Under the lock.
    std::deque<Teil> wartende_;
    std::size_t begonnen_ = 0;   ///< parts that are being done
    unsigned schlafende_ = 0;    ///< helpers without a part
    bool jemandWartet_ = false;  ///< the caller, for parts that helpers do
    bool ende_ = false;
};

}  // namespace zrw

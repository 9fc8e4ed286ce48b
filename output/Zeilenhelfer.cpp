#include "output/Zeilenhelfer.h"

#include <algorithm>
#include <system_error>

namespace zrw {

Zeilenhelfer::~Zeilenhelfer() {
    {
        const std::scoped_lock schloss(mutex_);
        ende_ = true;
    }
    arbeit_.notify_all();
    for (std::thread& f : faeden_)
        f.join();
}

unsigned Zeilenhelfer::HelferHier() {
    constexpr unsigned kMeiste = 7;
    return std::min(std::max(std::thread::hardware_concurrency(), 1U) - 1, kMeiste);
}

void Zeilenhelfer::BeginneHelfer() {
    try {
        while (faeden_.size() < helfer_)
            faeden_.emplace_back([this] { Hilf(); });
    } catch (const std::system_error&) {
        // No more threads are to be had: those there are do all of it.
        helfer_ = static_cast<unsigned>(faeden_.size());
    }
}

/// Takes parts until none is left. The lock is held but while a part is being done.
void Zeilenhelfer::NimmTeile(std::unique_lock<std::mutex>& schloss) {
    while (naechster_ < anzahl_) {
        const std::size_t teil = naechster_++;
        schloss.unlock();
        (*tun_)(teil);
        schloss.lock();
        if (--offen_ == 0) getan_.notify_all();
    }
}

void Zeilenhelfer::Hilf() {
    std::unique_lock schloss(mutex_);
    while (!ende_) {
        NimmTeile(schloss);
        arbeit_.wait(schloss, [this] { return ende_ || naechster_ < anzahl_; });
    }
}

void Zeilenhelfer::TueTeile(std::size_t anzahl, const std::function<void(std::size_t)>& tun) {
    if (helfer_ == 0 || anzahl < 2) {
        for (std::size_t i = 0; i < anzahl; ++i)
            tun(i);
        return;
    }
    BeginneHelfer();
    std::unique_lock schloss(mutex_);
    tun_ = &tun;
    anzahl_ = anzahl;
    naechster_ = 0;
    offen_ = anzahl;
    arbeit_.notify_all();
    NimmTeile(schloss);
    getan_.wait(schloss, [this] { return offen_ == 0; });
    anzahl_ = 0;
}

}  // namespace zrw

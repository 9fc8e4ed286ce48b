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

/// The lock is held but while the part is being done.
void Zeilenhelfer::TueErsten(std::unique_lock<std::mutex>& schloss) {
    const Teil teil = wartende_.front();
    wartende_.pop_front();
    ++begonnen_;
    schloss.unlock();
    (*teil.tun)(teil.nummer);
    schloss.lock();
    --begonnen_;
    if (jemandWartet_) getan_.notify_all();
}

void Zeilenhelfer::Hilf() {
    std::unique_lock schloss(mutex_);
    while (!ende_) {
        while (!wartende_.empty())
            TueErsten(schloss);
        ++schlafende_;
        arbeit_.wait(schloss, [this] { return ende_ || !wartende_.empty(); });
        --schlafende_;
    }
}

void Zeilenhelfer::GibTeil(std::size_t teil, const Arbeit& tun) {
    BeginneHelfer();
    if (helfer_ == 0) return tun(teil);
    bool wecken = false;
    {
        const std::scoped_lock schloss(mutex_);
        wartende_.push_back({teil, &tun});
        wecken = schlafende_ > 0;
    }
    if (wecken) arbeit_.notify_one();
}

void Zeilenhelfer::TueEinen() {
    std::unique_lock schloss(mutex_);
    if (!wartende_.empty()) return TueErsten(schloss);
    if (begonnen_ == 0) return;
    jemandWartet_ = true;
    getan_.wait(schloss, [this, n = begonnen_] { return begonnen_ < n || !wartende_.empty(); });
    jemandWartet_ = false;
}

void Zeilenhelfer::TueAlle() {
    std::unique_lock schloss(mutex_);
    while (!wartende_.empty() || begonnen_ > 0) {
        if (!wartende_.empty()) {
            TueErsten(schloss);
            continue;
        }
        jemandWartet_ = true;
        getan_.wait(schloss, [this] { return begonnen_ == 0 || !wartende_.empty(); });
        jemandWartet_ = false;
    }
}

void Zeilenhelfer::TueTeile(std::size_t anzahl, const Arbeit& tun) {
    for (std::size_t i = 0; i < anzahl; ++i)
        GibTeil(i, tun);
    TueAlle();
}

}  // namespace zrw

#pragma once

#include <sys/resource.h>
#include <unistd.h>

// Adverse circumstances, each for as long as its object lives.
namespace cirrava {

// A limit of the process, lowered.
class Limit {
public:
    Limit(__rlimit_resource resource, rlim_t value) : resource_(resource) {
        getrlimit(resource_, &before_);
        const rlimit lowered{.rlim_cur = value, .rlim_max = before_.rlim_max};
        setrlimit(resource_, &lowered);
    }
    ~Limit() { setrlimit(resource_, &before_); }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

private:
    __rlimit_resource resource_;
    rlimit before_{};
};

// A user whom permissions bind, as they do not bind root.
class PlainUser {
public:
    PlainUser() {
        if (before_ == 0)
            changed_ = seteuid(nobody) == 0;
    }
    ~PlainUser() {
        if (changed_)
            changed_ = seteuid(before_) != 0;
    }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;

private:
    static constexpr uid_t nobody = 65534;
    uid_t before_ = geteuid();
    bool changed_ = false;
};

} // namespace cirrava

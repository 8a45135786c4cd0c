#pragma once

/// A screen whose beeps are counted instead of heard.
template <typename S> class Quiet : public S {
public:
    using S::S;

    int beeps = 0;

protected:
    void beep() override { ++beeps; }
};

#pragma once

// One object of T in each thread, made when the thread first asks for it and ended with the thread.
template <class T>
class thr_ThreadSingleton {
public:
    static T& Instance() {
        static thread_local T instance;
        return instance;
    }
};

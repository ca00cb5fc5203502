#pragma once

// One object of T in the process, made when it is first asked for and kept until Finalize. Made and
// ended by the thread that brings the library up; not guarded.
template <class T>
class omi_SingletonBase {
public:
    static void Finalize() {
        T* const ending = instance;
        instance = nullptr;
        delete ending;
    }

protected:
    static inline T* instance = nullptr;
};

template <class T>
class omi_Singleton : public omi_SingletonBase<T> {
public:
    static T& Instance() {
        if (!omi_SingletonBase<T>::instance) omi_SingletonBase<T>::instance = new T();
        return *omi_SingletonBase<T>::instance;
    }
};

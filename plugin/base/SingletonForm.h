// The one form of a singleton that the catalogues share. In the header:
//
//   class ZP_EXPORT CZPExampleManager {
//    public:
//     static CZPExampleManager* GetInstance(); // never null
//    private:
//     CZPExampleManager(); // reads its file; an empty catalogue is a normal state
//   };
//
// and in the source ZP_IMPLEMENT_SINGLETON(CZPExampleManager).
//
// The first call constructs the object in place. If the constructor throws, the next call tries again.
// Objects are destroyed when the module is unloaded, in the reverse order in which their constructors ended,
// so one that another needs in its constructor outlives it. A destructor saves nothing. The first call comes
// from the main thread, as all calls do, and never from within the same class's constructor.
#pragma once

#define ZP_IMPLEMENT_SINGLETON(Class)                                                                        \
  Class* Class::GetInstance() {                                                                              \
    static Class instance;                                                                                   \
    return &instance;                                                                                        \
  }

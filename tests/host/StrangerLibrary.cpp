// A library that is no add-on.
extern "C" void SomethingElse();
extern "C" void SomethingElse() {}

// Carries the headers that are compiled once for all tests; see tests/CMakeLists.txt.
int main() { }

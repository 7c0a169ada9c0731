/usr/bin/c++ -O2 -std=c++20 -fPIC -o probe.o -c probe.cpp

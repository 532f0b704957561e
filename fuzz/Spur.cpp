// For the programs of the asan preset that don't ask which way an input takes: the fuzz programs
// bring their own one (Treiber.cpp).
extern "C" __attribute__((no_sanitize_coverage)) void __sanitizer_cov_trace_pc() {}

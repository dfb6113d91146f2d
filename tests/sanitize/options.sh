# What the sanitizers are told, to be sourced by bash scripts in the project's folder. Reports go to files, since not every
# process that a test starts has somebody who reads its standard error.
sanitizer_reports=$PWD/build-sanitize/reports
rm -rf "$sanitizer_reports"
mkdir -p "$sanitizer_reports"
# What a library that was loaded later keeps for each thread is left out of the look for leaks: where it begins is guessed from
# the bytes before it, and a wrong guess ends the look with "Tracer caught signal 11".
export ASAN_OPTIONS="log_path=$sanitizer_reports/report:log_exe_name=1:intercept_tls_get_addr=0"
export LSAN_OPTIONS="suppressions=$PWD/tests/sanitize/leaks.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1"
export TSAN_OPTIONS="suppressions=$PWD/tests/sanitize/threads.supp:log_path=$sanitizer_reports/threads:log_exe_name=1"

# What the sanitizers are told, to be sourced by bash scripts in the project's folder. Reports go to files, since not every
# process that a test starts has somebody who reads its standard error.
sanitizer_reports=$PWD/build-sanitize/reports
rm -rf "$sanitizer_reports"
mkdir -p "$sanitizer_reports"
export ASAN_OPTIONS="log_path=$sanitizer_reports/report:log_exe_name=1"
export LSAN_OPTIONS="suppressions=$PWD/tests/sanitize/leaks.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1"
export TSAN_OPTIONS="suppressions=$PWD/tests/sanitize/threads.supp:log_path=$sanitizer_reports/threads:log_exe_name=1"

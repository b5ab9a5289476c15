# shellcheck shell=bash
# Debian packages, read by ./run and ./test.

# To build and run the program.
run_packages=(g++ cmake ninja-build ccache libpugixml-dev libcli11-dev nlohmann-json3-dev
  libsqlite3-dev libpq-dev qt6-base-dev qt6-svg-dev libqt6svg6 fonts-liberation2)

# On top of these, to test it.
test_packages=(
  "${run_packages[@]}"
  clang libclang-rt-14-dev clang-format clang-tidy
  libgtest-dev libgmock-dev libbenchmark-dev
  python3-minimal
  postgresql
  poppler-utils
  xvfb xdotool openbox
)

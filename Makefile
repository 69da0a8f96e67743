# The front door. Each target installs what is missing first, so it works on a fresh machine.

.PHONY: run test bench fuzz shots package try-package tidy format clean prepare

# Starts the program; without a display, on a virtual one, leaving a picture in build/desktop.png.
run: prepare
	@tools/run.sh

# Builds everything and runs every test. TESTS=pattern chooses by name.
test: prepare
	@tools/test.sh $(if $(TESTS),--tests-regex '$(TESTS)')

# Measures speed and memory against other programs. BENCH=--quick takes less time.
bench: prepare
	@tools/bench.sh $(BENCH)

# Fuzzes every reader of outside input for FUZZ_SECONDS (30) each.
fuzz: prepare
	@tools/fuzz.sh

# Writes one picture of each window, on sample data, into build/shots.
shots: prepare
	@tools/shots.sh

# Makes what is handed out, in build/package: the installer and an archive.
package: prepare
	@tools/package.sh

# Installs, uses, upgrades and removes it in a fresh Wine prefix.
try-package: package
	@tools/try_package.sh

# Reviews the engines with clang-tidy.
tidy: prepare
	@tools/tidy.sh

# Brings every source into the common layout.
format: prepare
	@tools/check_format.sh --fix

clean:
	rm -rf build

prepare:
	@tools/install_packages.sh

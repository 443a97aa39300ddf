# The two set-up commands are `make run` and `make test`; everything else here serves them.
BUILD_DIR ?= build
ASAN_DIR ?= build-sanitize
JOBS ?= 2
BUILD_TYPE ?= RelWithDebInfo
CMAKE_ARGS ?=

.PHONY: run test test-sanitize bench deps build build-sanitize format clean screenshots

run: build
	$(BUILD_DIR)/bin/velto

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j$(JOBS)

# The same suite, compiled with AddressSanitizer and UndefinedBehaviorSanitizer.
test-sanitize: build-sanitize
	cd $(ASAN_DIR) && ctest --output-on-failure -j$(JOBS)

# Measurements; they take a few minutes of real time.
bench: build
	$(BUILD_DIR)/bench/bench_detection_pass
	dbus-run-session --config-file=tests/support/test-bus.conf -- $(BUILD_DIR)/bench/bench_system_providers
	$(BUILD_DIR)/bench/bench_timer_drift
	$(BUILD_DIR)/bench/bench_overlay_show
	$(BUILD_DIR)/bench/bench_notification_show
	bench/footprint.sh $(BUILD_DIR)

# The break screen at 1920×1080, the tray, the pre-break card and the settings panes, rendered without a display, into docs/screenshots.
screenshots: build
	QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software $(BUILD_DIR)/tools/screenshots/velto_screenshots docs/screenshots
	$(BUILD_DIR)/tools/screenshots/velto_screenshots_tray docs/screenshots
	QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software $(BUILD_DIR)/tools/screenshots/velto_screenshots_notification docs/screenshots
	QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software $(BUILD_DIR)/tools/screenshots/velto_screenshots_settings docs/screenshots

deps:
	@bash cmake/install-deps.sh

build: deps
	@test -f $(BUILD_DIR)/CMakeCache.txt || cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) $(CMAKE_ARGS)
	cmake --build $(BUILD_DIR) -j$(JOBS)

build-sanitize: deps
	@test -f $(ASAN_DIR)/CMakeCache.txt || cmake -S . -B $(ASAN_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVELTO_SANITIZE=ON $(CMAKE_ARGS)
	cmake --build $(ASAN_DIR) -j$(JOBS)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR) $(ASAN_DIR)

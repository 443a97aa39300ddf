# The two set-up commands are `make run` and `make test`; everything else here serves them.
BUILD_DIR ?= build
ASAN_DIR ?= build-sanitize
JOBS ?= 2
BUILD_TYPE ?= RelWithDebInfo
CMAKE_ARGS ?=

.PHONY: run test test-sanitize bench deps deps-test build build-app build-sanitize format clean screenshots deb

# Configures DIR for BUILD_TYPE with the tests and benchmarks ON or OFF, unless it already is.
configure = grep -qx 'VELTO_BUILD_TESTS:BOOL=$(3)' $(1)/CMakeCache.txt 2>/dev/null || \
	cmake -S . -B $(1) -G Ninja -DCMAKE_BUILD_TYPE=$(2) -DVELTO_BUILD_TESTS=$(3) -DVELTO_BUILD_BENCH=$(3) $(CMAKE_ARGS)

# Velto alone: only what building and running it need is installed.
run: build-app
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
	$(BUILD_DIR)/bench/bench_history
	$(BUILD_DIR)/bench/bench_history_pane
	bench/footprint.sh $(BUILD_DIR)
	dbus-run-session --config-file=tests/support/test-bus.conf -- $(BUILD_DIR)/bench/bench_wayland_session

# The break screen at 1920×1080, the tray, the pre-break card and the settings panes, rendered without a display, into docs/screenshots.
screenshots: build
	QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software $(BUILD_DIR)/tools/screenshots/velto_screenshots docs/screenshots
	$(BUILD_DIR)/tools/screenshots/velto_screenshots_tray docs/screenshots
	QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software $(BUILD_DIR)/tools/screenshots/velto_screenshots_notification docs/screenshots
	QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software $(BUILD_DIR)/tools/screenshots/velto_screenshots_settings docs/screenshots
	for language in de ja; do \
		export VELTO_SCREENSHOT_LANGUAGE=$$language QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software; \
		$(BUILD_DIR)/tools/screenshots/velto_screenshots_settings /tmp/velto-shots-$$language && \
		$(BUILD_DIR)/tools/screenshots/velto_screenshots_notification /tmp/velto-shots-$$language && \
		for name in settings-general-light settings-smart-pause-light notification-short-light; do \
			cp /tmp/velto-shots-$$language/$$name-$$language.png docs/screenshots/; done; done
	tools/screenshots/sway.sh $(BUILD_DIR) docs/screenshots
	tools/screenshots/gnome.sh $(BUILD_DIR) docs/screenshots

# A Debian package for /usr, velto_<version>_amd64.deb here; it leaves updates to the package manager.
DEB_DIR ?= build-deb
deb:
	@VELTO_EXTRA_PACKAGES="dpkg-dev file" bash cmake/install-deps.sh cmake/debian-packages.txt
	@test -f $(DEB_DIR)/CMakeCache.txt || cmake -S . -B $(DEB_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release \
		-DCMAKE_INSTALL_PREFIX=/usr -DVELTO_BUILD_TESTS=OFF -DVELTO_BUILD_BENCH=OFF -DVELTO_UPDATE_CHECKS=OFF $(CMAKE_ARGS)
	cmake --build $(DEB_DIR) -j$(JOBS)
	cd $(DEB_DIR) && cpack -G DEB -B $(CURDIR)/$(DEB_DIR)/packages
	cp $(DEB_DIR)/packages/velto_*_amd64.deb .

deps:
	@bash cmake/install-deps.sh cmake/debian-packages.txt

deps-test:
	@bash cmake/install-deps.sh cmake/debian-packages.txt cmake/debian-test-packages.txt

build-app: deps
	@$(call configure,$(BUILD_DIR),$(BUILD_TYPE),OFF)
	cmake --build $(BUILD_DIR) -j$(JOBS)

# Everything, tests and benchmarks included.
build: deps-test
	@$(call configure,$(BUILD_DIR),$(BUILD_TYPE),ON)
	cmake --build $(BUILD_DIR) -j$(JOBS)

build-sanitize: deps-test
	@test -f $(ASAN_DIR)/CMakeCache.txt || cmake -S . -B $(ASAN_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVELTO_SANITIZE=ON $(CMAKE_ARGS)
	cmake --build $(ASAN_DIR) -j$(JOBS)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR) $(ASAN_DIR) $(DEB_DIR) velto_*_amd64.deb

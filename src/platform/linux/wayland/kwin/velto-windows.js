// Reports KWin's application windows to Velto whenever one appears, goes, gets the focus, goes fullscreen,
// moves to another screen or changes its title. Velto fills in where to report to (@SERVICE@ and so on).
// KWin 6 names windows what KWin 5 called clients; the script speaks both.
const windowsOf = () => (workspace.windowList ? workspace.windowList() : workspace.clientList());

function describe(w) {
    const g = w.frameGeometry;
    return {
        appId: w.desktopFileName || w.resourceClass || "",
        title: w.caption || "",
        pid: w.pid || 0,
        active: w.active === true,
        fullscreen: w.fullScreen === true,
        minimized: w.minimized === true,
        x: g.x, y: g.y, width: g.width, height: g.height
    };
}

// A window being removed may still be listed while its signal runs.
function report(gone) {
    const windows = windowsOf().filter(w => w !== gone && (w.normalWindow || w.dialog)).map(describe);
    callDBus("@SERVICE@", "@PATH@", "@INTERFACE@", "update", JSON.stringify(windows));
}

function watch(w) {
    for (const name of ["captionChanged", "fullScreenChanged", "minimizedChanged", "outputChanged", "screenChanged"]) {
        if (w[name])
            w[name].connect(() => report());
    }
}

windowsOf().forEach(watch);
(workspace.windowAdded || workspace.clientAdded).connect(w => { watch(w); report(); });
(workspace.windowRemoved || workspace.clientRemoved).connect(report);
(workspace.windowActivated || workspace.clientActivated).connect(() => report());
report();

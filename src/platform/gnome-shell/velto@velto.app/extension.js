// Velto's eyes on GNOME Shell: which window is in front, its title, process, whether it is fullscreen and on
// which monitor, and the list of windows, over the session bus. Wayland keeps this from ordinary programs, so
// the facts go only to the process that owns Velto's bus name. A change is announced by a signal without
// window data (a signal reaches every listener); Velto then asks. Nothing here polls.
'use strict';

const { Gio, GLib, Shell } = imports.gi;

const VELTO_NAME = 'com.velto.app';
const SHELL_NAME = 'com.velto.app.Shell';
const SHELL_PATH = '/com/velto/app/Shell';
const SHELL_INTERFACE = `
<node>
  <interface name="com.velto.app.Shell1">
    <method name="FocusedWindow">
      <arg type="a{sv}" direction="out" name="window"/>
    </method>
    <method name="Windows">
      <arg type="aa{sv}" direction="out" name="windows"/>
    </method>
    <signal name="WindowsChanged"/>
  </interface>
</node>`;

// What Velto learns of one window.
function describe(window, focused) {
    const app = Shell.WindowTracker.get_default().get_window_app(window);
    const appId = app && app.get_id() && !app.is_window_backed()
        ? app.get_id().replace(/\.desktop$/, '')
        : window.get_gtk_application_id() || window.get_wm_class() || '';
    const monitor = window.get_monitor();
    const frame = window.get_frame_rect();
    return {
        appId: new GLib.Variant('s', appId),
        title: new GLib.Variant('s', window.get_title() || ''),
        pid: new GLib.Variant('i', window.get_pid()),
        fullscreen: new GLib.Variant('b', window.is_fullscreen()),
        minimized: new GLib.Variant('b', window.minimized),
        focused: new GLib.Variant('b', window === focused),
        monitor: new GLib.Variant('i', monitor),
        primary: new GLib.Variant('b', monitor === global.display.get_primary_monitor()),
        x: new GLib.Variant('i', frame.x),
        y: new GLib.Variant('i', frame.y),
        width: new GLib.Variant('i', frame.width),
        height: new GLib.Variant('i', frame.height),
    };
}

class WindowFacts {
    enable() {
        this._object = Gio.DBusExportedObject.wrapJSObject(SHELL_INTERFACE, this);
        this._object.export(Gio.DBus.session, SHELL_PATH);
        this._name = Gio.bus_own_name_on_connection(Gio.DBus.session, SHELL_NAME,
            Gio.BusNameOwnerFlags.NONE, null, null);
        this._owner = null;
        this._watch = Gio.bus_watch_name_on_connection(Gio.DBus.session, VELTO_NAME,
            Gio.BusNameWatcherFlags.NONE,
            (_connection, _name, owner) => (this._owner = owner),
            () => (this._owner = null));
        this._windowSignals = new Map();
        this._displaySignals = [
            global.display.connect('notify::focus-window', () => this._changed()),
            global.display.connect('window-created', (_display, window) => this._track(window)),
            global.display.connect('in-fullscreen-changed', () => this._changed()),
            // A window that moves within its monitor changes nothing Velto looks at.
            global.display.connect('window-entered-monitor', () => this._changed()),
        ];
        for (const actor of global.get_window_actors())
            this._track(actor.meta_window);
    }

    disable() {
        for (const id of this._displaySignals)
            global.display.disconnect(id);
        for (const [window, ids] of this._windowSignals)
            ids.forEach(id => window.disconnect(id));
        this._windowSignals.clear();
        if (this._idle)
            GLib.source_remove(this._idle);
        this._idle = 0;
        Gio.bus_unwatch_name(this._watch);
        Gio.bus_unown_name(this._name);
        this._object.unexport();
        this._object = null;
    }

    _track(window) {
        if (this._windowSignals.has(window))
            return;
        this._windowSignals.set(window, [
            window.connect('notify::title', () => this._changed()),
            window.connect('notify::minimized', () => this._changed()),
            window.connect('workspace-changed', () => this._changed()),
            window.connect('unmanaged', () => {
                this._windowSignals.get(window).forEach(id => window.disconnect(id));
                this._windowSignals.delete(window);
                this._changed();
            }),
        ]);
        this._changed();
    }

    // Several changes in one turn of the shell's loop make one signal.
    _changed() {
        if (this._idle)
            return;
        this._idle = GLib.idle_add(GLib.PRIORITY_DEFAULT_IDLE, () => {
            this._idle = 0;
            this._object.emit_signal('WindowsChanged', null);
            return GLib.SOURCE_REMOVE;
        });
    }

    // Answers Velto alone; anyone else is refused.
    _allowed(invocation) {
        if (this._owner !== null && invocation.get_sender() === this._owner)
            return true;
        invocation.return_dbus_error('org.freedesktop.DBus.Error.AccessDenied',
            'Only Velto may ask about windows');
        return false;
    }

    FocusedWindowAsync(_parameters, invocation) {
        if (!this._allowed(invocation))
            return;
        const focused = global.display.get_focus_window();
        invocation.return_value(new GLib.Variant('(a{sv})', [focused ? describe(focused, focused) : {}]));
    }

    WindowsAsync(_parameters, invocation) {
        if (!this._allowed(invocation))
            return;
        const focused = global.display.get_focus_window();
        const windows = global.get_window_actors()
            .map(actor => actor.meta_window)
            .filter(window => !window.is_skip_taskbar())
            .map(window => describe(window, focused));
        invocation.return_value(new GLib.Variant('(aa{sv})', [windows]));
    }
}

function init() {
    return new WindowFacts();
}

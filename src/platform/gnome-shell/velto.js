// What GNOME Shell does for Velto that an ordinary Wayland program cannot do for itself:
// - tells Velto which window is in front, its title, process, whether it is fullscreen and on which monitor,
//   and the list of windows. Wayland keeps this from ordinary programs, so the facts go only to the process
//   that owns Velto's bus name; a change is announced by a signal without window data, and Velto then asks;
// - keeps Velto's pre-break card above other windows, on every workspace, at the top left of the work area
//   where the user works, without the focus; and the break screens above everything;
// - where no tray exists, shows Velto's icon and menu in the top bar, as Velto presents them.
// Nothing here polls.
//
// One body for both module formats the shell has used: the build puts it between the imports and the entry
// point of either (legacy.js for GNOME 43 and 44, modules.js from 45 on), which supply Gio, GLib, Shell, St,
// Main, PanelMenu and PopupMenu.

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

// Velto's own windows, told apart by the process that owns Velto's name and their titles.
const CARD_TITLE = 'Velto';
const BREAK_TITLE = 'Velto Break';
// Where the card sits in the work area, as on desktops that let Velto place it.
const CARD_MARGIN_X = 16;
const CARD_MARGIN_Y = 20;

class VeltoWindows {
    enable() {
        this._pid = 0;
        this._windows = new Map();
        this._watch = Gio.bus_watch_name_on_connection(Gio.DBus.session, VELTO_NAME,
            Gio.BusNameWatcherFlags.NONE,
            (_connection, _name, owner) => this._learnPid(owner),
            () => (this._pid = 0));
        this._created = global.display.connect('window-created', (_display, window) => this._consider(window));
        this._focus = global.display.connect('notify::focus-window', () => this._keepFocus());
    }

    disable() {
        global.display.disconnect(this._created);
        global.display.disconnect(this._focus);
        for (const [window, ids] of this._windows)
            ids.forEach(id => window.disconnect(id));
        this._windows.clear();
        this._card = null;
        this._previous = null;
        Gio.bus_unwatch_name(this._watch);
    }

    _learnPid(owner) {
        Gio.DBus.session.call('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
            'GetConnectionUnixProcessID', new GLib.Variant('(s)', [owner]), new GLib.VariantType('(u)'),
            Gio.DBusCallFlags.NONE, -1, null, (connection, result) => {
                try {
                    [this._pid] = connection.call_finish(result).deepUnpack();
                } catch (e) {
                    this._pid = 0;
                }
            });
    }

    // A window's title may come after the window: look again when it does.
    _consider(window) {
        if (!this._pid || window.get_pid() !== this._pid || this._windows.has(window))
            return;
        const ids = [
            window.connect('notify::title', () => this._place(window)),
            window.connect('unmanaged', () => this._forget(window)),
        ];
        this._windows.set(window, ids);
        // Whatever had the focus when the card arrived keeps it.
        this._previous = global.display.get_focus_window();
        this._place(window);
    }

    _forget(window) {
        this._windows.get(window).forEach(id => window.disconnect(id));
        this._windows.delete(window);
        if (window === this._card) {
            this._card = null;
            this._previous = null;
        }
    }

    _place(window) {
        const title = window.get_title();
        // Qt adds the application's name to a window's title.
        if (title && title.startsWith(BREAK_TITLE)) {
            window.make_above();
            window.stick();
        } else if (title === CARD_TITLE && window !== this._card) {
            this._card = window;
            if (this._previous === window)
                this._previous = null;
            window.make_above();
            window.stick();
            this._moveCard();
            // The shell places a new window when it first shows it: the card's place comes after that.
            const ids = this._windows.get(window);
            ids.push(window.connect('shown', () => this._moveCard()));
            this._keepFocus();
        }
    }

    _moveCard() {
        const monitor = this._previous ? this._previous.get_monitor() : global.display.get_primary_monitor();
        const area = Main.layoutManager.getWorkAreaForMonitor(monitor);
        this._card.move_frame(false, area.x + CARD_MARGIN_X, area.y + CARD_MARGIN_Y);
    }

    // The card never keeps the focus: it goes back at once to the window that had it.
    _keepFocus() {
        const focused = global.display.get_focus_window();
        if (!this._card || focused !== this._card)
            return;
        const now = global.display.get_current_time_roundtrip();
        if (this._previous && this._previous.get_compositor_private())
            this._previous.focus(now);
        else
            global.workspace_manager.get_active_workspace().focus_default_window(this._card, now);
    }
}

const TRAY_NAME = 'org.kde.StatusNotifierWatcher';
const INDICATOR_PATH = '/com/velto/app/Indicator';
const INDICATOR_INTERFACE = 'com.velto.app.Indicator1';
const ICON_SIZE = 16;

// Velto's icon and menu in the top bar while Velto runs and no tray exists; a tray shows Velto itself.
class Indicator {
    enable() {
        this._velto = false;
        this._tray = false;
        this._veltoWatch = Gio.bus_watch_name_on_connection(Gio.DBus.session, VELTO_NAME,
            Gio.BusNameWatcherFlags.NONE, () => this._set('_velto', true), () => this._set('_velto', false));
        this._trayWatch = Gio.bus_watch_name_on_connection(Gio.DBus.session, TRAY_NAME,
            Gio.BusNameWatcherFlags.NONE, () => this._set('_tray', true), () => this._set('_tray', false));
    }

    disable() {
        Gio.bus_unwatch_name(this._veltoWatch);
        Gio.bus_unwatch_name(this._trayWatch);
        this._hide();
    }

    _set(what, value) {
        this[what] = value;
        if (this._velto && !this._tray)
            this._show();
        else
            this._hide();
    }

    _show() {
        if (this._button)
            return;
        this._button = new PanelMenu.Button(0.0, 'Velto', false);
        this._icon = new St.Icon({ icon_size: ICON_SIZE, style_class: 'system-status-icon' });
        this._button.add_child(this._icon);
        this._menuItems = '';
        this._cancellable = new Gio.Cancellable();
        this._button.menu.connect('open-state-changed', (_menu, open) => {
            if (open)
                this._refreshMenu();
        });
        Main.panel.addToStatusArea('velto', this._button);
        this._changed = Gio.DBus.session.signal_subscribe(VELTO_NAME, INDICATOR_INTERFACE, 'changed',
            INDICATOR_PATH, null, Gio.DBusSignalFlags.NONE, () => this._refresh());
        this._refresh();
    }

    _hide() {
        if (!this._button)
            return;
        Gio.DBus.session.signal_unsubscribe(this._changed);
        this._cancellable.cancel();
        this._cancellable = null;
        this._button.destroy();
        this._button = null;
        this._icon = null;
    }

    _call(method, parameters, replyType, done) {
        Gio.DBus.session.call(VELTO_NAME, INDICATOR_PATH, INDICATOR_INTERFACE, method, parameters,
            replyType ? new GLib.VariantType(replyType) : null, Gio.DBusCallFlags.NONE, -1, this._cancellable,
            (connection, result) => {
                let reply;
                try {
                    reply = connection.call_finish(result);
                } catch (e) {
                    return; // Velto went away or this indicator did; what shows stays until then
                }
                if (done && this._button)
                    done(reply.deepUnpack());
            });
    }

    _refresh() {
        const scale = St.ThemeContext.get_for_stage(global.stage).scale_factor;
        this._call('icon', new GLib.Variant('(i)', [ICON_SIZE * scale]), '(ay)', ([png]) => {
            this._icon.gicon = Gio.BytesIcon.new(new GLib.Bytes(png));
        });
        this._call('texts', null, '(ss)', ([label, value]) => {
            this._button.accessible_name = value ? `${label} ${value}` : label;
        });
        // An open menu is never changed under the pointer.
        if (!this._button.menu.isOpen)
            this._refreshMenu();
    }

    _refreshMenu() {
        this._call('menu', null, '(aa{sv})', ([items]) => {
            const described = JSON.stringify(items.map(item => Object.entries(item).map(([k, v]) => [k, v.unpack()])));
            if (described === this._menuItems)
                return;
            this._menuItems = described;
            this._button.menu.removeAll();
            for (const item of items) {
                const get = key => (item[key] ? item[key].unpack() : undefined);
                if (get('separator')) {
                    this._button.menu.addMenuItem(new PopupMenu.PopupSeparatorMenuItem());
                    continue;
                }
                const entry = new PopupMenu.PopupMenuItem(get('title') || '');
                const action = get('action');
                entry.setSensitive(Boolean(get('enabled')) && Boolean(action));
                if (action)
                    entry.connect('activate', () => this._call('activate', new GLib.Variant('(s)', [action])));
                this._button.menu.addMenuItem(entry);
            }
        });
    }
}

// Everything is made in enable() and let go in disable(), as the shell asks of extensions.
class VeltoShell {
    enable() {
        this._parts = [new WindowFacts(), new VeltoWindows(), new Indicator()];
        this._parts.forEach(part => part.enable());
    }

    disable() {
        this._parts.reverse().forEach(part => part.disable());
        this._parts = null;
    }
}

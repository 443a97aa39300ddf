// GNOME Shell 45 and later: ES modules.
import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import Shell from 'gi://Shell';
import St from 'gi://St';

import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import * as PanelMenu from 'resource:///org/gnome/shell/ui/panelMenu.js';
import * as PopupMenu from 'resource:///org/gnome/shell/ui/popupMenu.js';
import { Extension } from 'resource:///org/gnome/shell/extensions/extension.js';

// @BODY@

export default class VeltoExtension extends Extension {
    enable() {
        this._shell = new VeltoShell();
        this._shell.enable();
    }

    disable() {
        this._shell.disable();
        this._shell = null;
    }
}

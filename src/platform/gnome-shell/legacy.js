// GNOME Shell 43 and 44: the legacy module format.
'use strict';

const { Gio, GLib, Shell, St } = imports.gi;
const Main = imports.ui.main;
const PanelMenu = imports.ui.panelMenu;
const PopupMenu = imports.ui.popupMenu;

// @BODY@

function init() {
    return new VeltoShell();
}

#pragma once

#include "widgets/FileDialogs.h"

#include <QFileDialog>

// How ScreenFileDialogs shows a file dialog.

/// The chosen file; empty when the dialog was cancelled.
QString showFileDialog(QWidget* owner, const FileDialogRequest& request, QFileDialog::AcceptMode mode);
/// Whether the dialog offers all files, whatever they are called, and does so first.
bool listsAllFiles(const FileDialogRequest& request);

/// Sets what all platforms show alike.
void prepare(QFileDialog& dialog, const FileDialogRequest& request, QFileDialog::AcceptMode mode);
/// The ending of the first pattern of a name filter: "ics" of "iCalendar Files (*.ics)".
QString endingOf(const QString& nameFilter);

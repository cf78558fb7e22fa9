#pragma once

#include <QString>

class QWidget;
struct FormServices;

/// Asks for a PDF file to write, proposing `name` in the user's documents; the checker's timer is paused
/// meanwhile. A name without an ending gets ".pdf". Empty when the user cancels.
QString choosePdfFile(const FormServices& services, QWidget* owner, const QString& name);

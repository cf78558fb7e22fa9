#pragma once

#include <QString>

class QWidget;
struct FormServices;

/// Asks for the PDF file to write, `name` proposed, in the user's documents; the checker's timer rests
/// meanwhile. A name without an ending gets ".pdf". Empty when the user has cancelled, or does not want an
/// existing file replaced.
QString choosePdfFile(const FormServices& services, QWidget* owner, const QString& name);

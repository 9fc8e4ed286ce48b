// Printing where no printer is set up and the system's dialogs take none but its own: on Windows.
#pragma once

class QPrinter;
class QWidget;

namespace zrw {

/// Whether the dialogs of the system cannot be shown for this printer, as it writes a file and they know
/// printers only.
[[nodiscard]] bool BrauchtEigeneDialoge(const QPrinter& geraet);

/// Asks for the PDF file that is to be written, and hands it to the printer. @return false: cancelled
[[nodiscard]] bool FrageNachPdf(QPrinter& geraet, QWidget* eltern);

/// Asks for one of the sizes of paper, upright or across, with the usual margins. @return false: cancelled
[[nodiscard]] bool FrageNachPapier(QPrinter& geraet, QWidget* eltern);

}  // namespace zrw

#ifndef PROCESSING_PROGRESS_DIALOG_H
#define PROCESSING_PROGRESS_DIALOG_H

#include <QProgressDialog>

// The launcher's only window: a small window-modal dialog that shows the
// upgrade's progress. Its constructor fixes the whole look; the Launcher
// decides when it is shown and what it reports.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    ProcessingProgressDialog();
};

#endif  // PROCESSING_PROGRESS_DIALOG_H

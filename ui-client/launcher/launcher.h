#ifndef LAUNCHER_H
#define LAUNCHER_H

#include <QObject>
#include <QString>

class ProcessingProgressDialog;
class Worker;

// The controller of a run: owns the progress dialog and the Worker, starts
// the work, shows the worker's progress and ends the event loop once the
// worker is done and its thread has been joined.
class Launcher : public QObject {
    Q_OBJECT

public:
    Launcher();
    ~Launcher() override;

    void Run();
    void Start();

signals:
    void sigStart();

protected:
    // Takes ownership of worker.
    explicit Launcher(Worker* worker);

private slots:
    void LaunchDone();
    void UpdateProgress(int total, int steps);
    void SetLabelText(QString const& text);
    void ShowMsgBox();

private:
    void ConnectSignals();

    Worker* worker = nullptr;
    ProcessingProgressDialog* dialog = nullptr;
};

#endif  // LAUNCHER_H

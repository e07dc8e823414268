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
    // Takes ownership of worker; tests pass one of their own.
    explicit Launcher(Worker* worker);
    ~Launcher() override;

    void Run();
    void Start();

signals:
    void sigStart();

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

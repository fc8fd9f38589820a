#pragma once

#include "qtsync/KVQtSync.h"

#include <QDialog>

// A dialog whose fields are bound to variables: they are filled before it runs and read back after.
class KVQSyncDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    // Intended: the fields are read back whatever button closed the dialog; the caller decides by
    // the result whether to keep the values.
    int exec() override;

protected:
    // Binds each field; called for both directions.
    virtual void synchronise(KVQtSync& sync) = 0;

private:
    void pass(KVQtSync::SyncMode mode);
};

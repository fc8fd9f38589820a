#include "qtsync/KVQSyncDialog.h"

int KVQSyncDialog::exec()
{
    pass(KVQtSync::ToWidgets);
    const int result = QDialog::exec();
    pass(KVQtSync::FromWidgets);
    return result;
}

// No pass is alive while the dialog runs, so that its handlers may have their own.
void KVQSyncDialog::pass(KVQtSync::SyncMode mode)
{
    KVQtSync sync(mode);
    synchronise(sync);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/sessionmanager.h"

extern "C" {
#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>
}

#include <poll.h>

#include <cstdlib>

namespace {

IceListenObj *listeners = nullptr;
int listenerCount = 0;
IceConn connection = nullptr;
SmsConn client = nullptr;
int answerCount = 0;

Bool acceptAnyone(char *)
{
    return True;
}

Status registerClient(SmsConn conn, SmPointer, char *)
{
    char *id = SmsGenerateClientID(conn);
    SmsRegisterClientReply(conn, id);
    std::free(id);
    SmsSaveYourself(conn, SmSaveLocal, False, SmInteractStyleNone, False); // required by the protocol
    return True;
}

void askForPhase2(SmsConn conn, SmPointer)
{
    SmsSaveYourselfPhase2(conn);
}

void countAnswer(SmsConn, SmPointer, Bool)
{
    ++answerCount;
}

void closeClient(SmsConn conn, SmPointer, int count, char **reasons)
{
    SmFreeReasons(count, reasons);
    SmsCleanUp(conn);
    client = nullptr;
}

void dropProperties(SmsConn, SmPointer, int count, SmProp **properties)
{
    for (int i = 0; i < count; ++i) {
        SmFreeProperty(properties[i]);
    }
    std::free(properties);
}

/// No one asks for the rest: no interaction, no deleted or queried properties.
Status acceptClient(SmsConn conn, SmPointer, unsigned long *mask, SmsCallbacks *callbacks, char **)
{
    client = conn;
    *callbacks = {};
    callbacks->register_client.callback = registerClient;
    callbacks->interact_request.callback = [](SmsConn conn_, SmPointer, int) { SmsInteract(conn_); };
    callbacks->interact_done.callback = [](SmsConn, SmPointer, Bool) {};
    callbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {};
    callbacks->save_yourself_phase2_request.callback = askForPhase2;
    callbacks->save_yourself_done.callback = countAnswer;
    callbacks->close_connection.callback = closeClient;
    callbacks->set_properties.callback = dropProperties;
    callbacks->delete_properties.callback = [](SmsConn, SmPointer, int, char **) {};
    callbacks->get_properties.callback = [](SmsConn, SmPointer) {};
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    return True;
}

bool hasInput(int descriptor)
{
    pollfd input = {descriptor, POLLIN, 0};
    return poll(&input, 1, 0) > 0;
}

void acceptConnections()
{
    for (int i = 0; i < listenerCount; ++i) {
        IceAcceptStatus status = IceAcceptSuccess;
        if (!connection && hasInput(IceGetListenConnectionNumber(listeners[i]))) {
            connection = IceAcceptConnection(listeners[i], &status);
        }
    }
}

void handleMessages()
{
    while (connection && hasInput(IceConnectionNumber(connection))) {
        if (IceProcessMessages(connection, nullptr, nullptr) != IceProcessMessagesSuccess) {
            connection = nullptr;
        }
    }
}

} // namespace

SessionManager::~SessionManager()
{
    if (listeners) {
        IceFreeListenObjs(listenerCount, listeners);
        listeners = nullptr;
    }
    connection = nullptr;
    client = nullptr;
    answerCount = 0;
}

bool SessionManager::listen()
{
    char error[256] = "";
    static const bool isReady =
        SmsInitialize("test", "1", acceptClient, nullptr, acceptAnyone, sizeof error, error);
    if (!isReady || !IceListenForConnections(&listenerCount, &listeners, sizeof error, error)) {
        return false;
    }
    IceSetIOErrorHandler([](IceConn) {}); // by default, a client that vanishes ends the process
    for (int i = 0; i < listenerCount; ++i) {
        IceSetHostBasedAuthProc(listeners[i], acceptAnyone);
    }
    char *ids = IceComposeNetworkIdList(listenerCount, listeners);
    networkId = QString::fromLocal8Bit(ids);
    std::free(ids);
    return true;
}

bool SessionManager::answers(int number)
{
    acceptConnections();
    handleMessages();
    return answerCount >= number;
}

void SessionManager::askToSave()
{
    if (client) {
        SmsSaveYourself(client, SmSaveBoth, True, SmInteractStyleAny, False);
    }
}

void SessionManager::cancel()
{
    if (client) {
        SmsShutdownCancelled(client);
    }
}

void SessionManager::end()
{
    if (client) {
        SmsDie(client);
    }
}

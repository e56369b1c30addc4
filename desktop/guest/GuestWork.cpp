#include "desktop/guest/GuestWork.h"

#include <cassert>
#include <exception>
#include <new>
#include <utility>

#include <QCoreApplication>

namespace quorvia::host {
namespace {

std::string failureOf(const GuestWork::Work& work) {
    try {
        work();
        return "";
    } catch (const std::bad_alloc&) {
        return "There is not enough memory.";
    } catch (const std::exception& exception) {
        return exception.what();
    } catch (...) {
        return "The add-on has thrown an exception.";
    }
}

} // namespace

GuestWork::~GuestWork() {
    if (thread_.joinable())
        thread_.join();
}

void GuestWork::start(Work work, Afterwards afterwards) {
    assert(!isRunning());
    afterwards_ = std::move(afterwards);
    thread_ = std::thread([this, work = std::move(work)] {
        const std::string failure = failureOf(work);
        QMetaObject::invokeMethod(
            this, [this, failure] { finish(failure); }, Qt::QueuedConnection);
    });
}

void GuestWork::waitForEnd() {
    afterwards_ = [](const std::string&) {};
    while (isRunning())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void GuestWork::finish(const std::string& failure) {
    thread_.join();
    const Afterwards afterwards = std::exchange(afterwards_, nullptr);
    afterwards(failure);
}

} // namespace quorvia::host

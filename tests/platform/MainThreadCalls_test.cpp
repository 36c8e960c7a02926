#include "platform/MainThreadCalls.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

TEST(MainThreadCalls, run_on_the_thread_that_serves_in_the_order_of_each_caller)
{
    MainThreadCalls calls;
    std::vector<int> order;  // without a lock: only the serving thread touches it
    std::atomic<bool> working{true};
    bool elsewhere = false;
    const auto main = std::this_thread::get_id();
    std::thread worker([&] {
        for (int i = 0; i < 200; ++i) {
            const auto call = [&, i] {
                order.push_back(i);
                elsewhere |= std::this_thread::get_id() != main;
            };
            if (i % 3)
                calls.CallAndWait(call);
            else
                calls.Post(call);
        }
        calls.Post([&] { working = false; });
    });
    while (working)
        calls.Service(50ms);
    worker.join();
    ASSERT_EQ(order.size(), 200u);
    for (int i = 0; i < 200; ++i)
        EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
    EXPECT_FALSE(elsewhere);
}

TEST(MainThreadCalls, leave_nobody_waiting_once_closed)
{
    MainThreadCalls calls;
    int ran = 0;
    calls.Post([&] { ++ran; });
    calls.Close();
    EXPECT_EQ(ran, 1);
    calls.CallAndWait([&] { ++ran; });  // returns, although nobody serves
    EXPECT_EQ(ran, 1);
}

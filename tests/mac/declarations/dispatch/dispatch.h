// What src/platform/mac uses of the platform's queues, written from their documentation.
#pragma once

#import <Foundation/Foundation.h>

typedef NSObject *dispatch_queue_t;
dispatch_queue_t dispatch_get_main_queue(void);
void dispatch_async(dispatch_queue_t queue, void (^block)(void));

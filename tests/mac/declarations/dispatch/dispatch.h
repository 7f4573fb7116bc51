// Just the queues that src/platform/mac uses, written from the platform's public documentation.
#pragma once

#import <Foundation/Foundation.h>

typedef NSObject *dispatch_queue_t;
dispatch_queue_t dispatch_get_main_queue(void);
void dispatch_async(dispatch_queue_t queue, void (^block)(void));

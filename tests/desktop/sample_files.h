// A machine list and a plan of it, as small as they can be.
#pragma once

namespace veldrin {

constexpr char kSampleList[] =
    "LIST\r\nNX4\r\nFINAL-DRIVE\r\n16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,1,PRIMARY\r\n20,40\r\n99\r\n-\r\n-"
    "\r\n1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\nM34-ARRAY\r\n0\r\n";
constexpr char kSamplePlan[] =
    "FROM:NX4.RAT\r\n2\r\n10000\r\n60\r\n80\r\n100\r\n120\r\n150\r\n160\r\n20\r\n40\r\n16\r\n40\r\n"
    "1A-2A-3A-4A-5A-6A\r\nremark\r\n";

}  // namespace veldrin

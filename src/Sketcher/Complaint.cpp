#include "Complaint.h"

#include <iostream>

void Complain(const std::string& text)
{
    std::cerr << "sketcher: " << text << std::endl;
}

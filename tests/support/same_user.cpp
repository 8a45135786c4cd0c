// Where a program cannot become another user.
#include "support/ordinary_user.h"

OrdinaryUser::OrdinaryUser(const QString&) { }

OrdinaryUser::~OrdinaryUser() = default;

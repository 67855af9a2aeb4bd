std::map<std::string, std::any> global_vars;

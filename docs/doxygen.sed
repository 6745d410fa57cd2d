# What the pages link to in the repository is found in the site as a class or a file.
/^\[\w+\]: \.\.\/Thrift\//{
    s#^\[(\w+)\]: \.\./(.*)/\w+\.h$#[\1]: @ref Talvo/Corvane/Zelmar/Serialization/\2/\1#
    s#/#::#g
}
s#\]\((\.\./)*([^):]*\.(h|cpp))\)#](@ref \2)#g

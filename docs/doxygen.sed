# Turns links to files of the repository into references to the site's classes and files.
/^\[\w+\]: \.\.\/Thrift\//{
    s#^\[(\w+)\]: \.\./(.*)/\w+\.h$#[\1]: @ref Talvo/Corvane/Zelmar/Serialization/\2/\1#
    s#/#::#g
}
s#\]\((\.\./)*([^):]*\.(h|cpp))\)#](@ref \2)#g

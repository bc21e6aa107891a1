using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An XMP metadata packet is not well-formed, or violates ISO 16684-1.</summary>
public class XmpException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public XmpException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public XmpException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

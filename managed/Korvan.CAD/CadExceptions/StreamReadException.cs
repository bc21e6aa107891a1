using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>A stream ended early or could not be read.</summary>
public class StreamReadException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public StreamReadException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public StreamReadException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

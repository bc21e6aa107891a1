using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>A stream ended early or refused to be read.</summary>
public class StreamReadException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public StreamReadException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public StreamReadException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

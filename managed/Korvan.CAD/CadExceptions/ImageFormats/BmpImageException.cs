using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A BMP image violates its format, or uses a feature that is not supported.</summary>
public class BmpImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public BmpImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public BmpImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A PSD image violates its format, or uses a feature that is not supported.</summary>
public class PsdImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public PsdImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public PsdImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

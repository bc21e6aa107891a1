using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A drawing violates its format, or an operation is not valid for the drawing.</summary>
public class CadException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public CadException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public CadException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

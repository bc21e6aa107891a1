using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>An image resource block of a PSD file does not match its identifier.</summary>
public class PsdImageResourceException : PsdImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public PsdImageResourceException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public PsdImageResourceException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

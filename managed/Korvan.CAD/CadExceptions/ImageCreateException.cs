using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An image or drawing could not be created.</summary>
public class ImageCreateException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public ImageCreateException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public ImageCreateException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

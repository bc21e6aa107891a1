using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>The processing of an image or drawing failed.</summary>
public class ImageException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public ImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public ImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>A failure in the handling of an image or drawing.</summary>
public class ImageException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public ImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public ImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

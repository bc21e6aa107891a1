using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An image or drawing could not be created.</summary>
public class ImageCreateException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public ImageCreateException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public ImageCreateException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

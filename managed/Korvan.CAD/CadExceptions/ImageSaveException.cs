using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An image or drawing could not be written.</summary>
public class ImageSaveException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public ImageSaveException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public ImageSaveException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

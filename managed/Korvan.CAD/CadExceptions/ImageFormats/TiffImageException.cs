using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A TIFF breaks a rule of its format, or a request does not fit it.</summary>
public class TiffImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public TiffImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public TiffImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

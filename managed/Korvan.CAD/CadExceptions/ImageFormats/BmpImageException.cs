using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A bitmap breaks a rule of its format, or uses a part of it that is not read.</summary>
public class BmpImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public BmpImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public BmpImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

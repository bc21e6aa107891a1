using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>A file or stream could not be read: it is missing, damaged or of a format that has no reader.</summary>
public class ImageLoadException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public ImageLoadException(string message)
        : base(message)
    {
    }

    internal ImageLoadException(LoadDefect defect)
        : base(defect.ToString())
    {
        Defect = defect;
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public ImageLoadException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }

    /// <summary>Gets the defect of the file; nothing where the reader of the format does not number them.</summary>
    internal LoadDefect? Defect { get; }
}

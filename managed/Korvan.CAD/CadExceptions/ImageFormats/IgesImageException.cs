using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A file of the Initial Graphics Exchange Specification (IGES) can't be loaded.</summary>
public class IgesImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public IgesImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public IgesImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

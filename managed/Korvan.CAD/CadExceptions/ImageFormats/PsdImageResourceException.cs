using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A resource block of a PSD does not hold what its number promises.</summary>
public class PsdImageResourceException : PsdImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public PsdImageResourceException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public PsdImageResourceException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

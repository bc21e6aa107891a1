using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A building model breaks a rule of its format or schema, or a request does not fit the model.</summary>
public class IfcImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public IfcImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public IfcImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A building model violates its format or schema, or an operation is not valid for the model.</summary>
public class IfcImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public IfcImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public IfcImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}

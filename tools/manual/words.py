"""The reference's own words in both languages."""

WORDS = {
    "en": {
        "reference": "Reference",
        "intro": "Every member of the library. The sentence below a name is the one that type-library browsers show.",
        "by number": "A type-library browser and a form's `HelpContextID` have numbers instead: "
                     "[help contexts](contexts.md).",
        "by reference": "Arguments go by reference; variables of any type that converts, constants and expressions "
                        "will do. Optional ones stand at the end and can be left out.",
        "classes": "By class",
        "all": "All members",
        "class": "class",
        "member": "member",
        "help": "what it is",
        "argument": "argument",
        "type": "type",
        "meaning": "meaning",
        "optional": "optional",
        "default": "optional, default {}",
        "constant": "constant",
        "value": "value",
        "result": "Result",
        "failure": "When it cannot",
        "writing": "Writing",
        "guide": "More about it",
        "ids": "Dispatch id `{}`, help context {}.",
        "class id": "Help context {}.",
        "events": "Events",
        "event": "Event of `{}`.",
        "engines": "What each engine gets; a dot `·` at an end of a text stands for a blank there:",
        "empty": "(empty)",
        "call": "call",
        "late": "This is `{0}` of the contract [`iSQL20`]({1}). On the class itself, and so for every late-bound "
                "host, it has `iSQL20_` in front; on a variable `As iSQL20` it is called `{0}`.",
        "contexts": "Help contexts",
        "contexts intro": "The number that a type-library browser or a form's `HelpContextID` has, and the page that "
                          "it leads to. The file `contexts.ini` at the root of the site holds the same, one line "
                          "`number=page` each in its section `contexts`.",
        "number": "number",
        "page": "page",
        "library": "QVRlib21",
    },
    "es": {
        "reference": "Referencia",
        "intro": "Todos los miembros de la biblioteca. La frase bajo cada nombre es la traducción de la que muestran "
                 "los examinadores de bibliotecas de tipos.",
        "by number": "Un examinador de bibliotecas de tipos y el `HelpContextID` de un formulario tienen números en "
                     "su lugar: [contextos de ayuda](contexts.md).",
        "by reference": "Los argumentos van por referencia; sirven variables de cualquier tipo que se pueda convertir, "
                        "constantes y expresiones. Los opcionales están al final y se pueden omitir.",
        "classes": "Por clases",
        "all": "Todos los miembros",
        "class": "clase",
        "member": "miembro",
        "help": "qué es",
        "argument": "argumento",
        "type": "tipo",
        "meaning": "significado",
        "optional": "opcional",
        "default": "opcional, por omisión {}",
        "constant": "constante",
        "value": "valor",
        "result": "Resultado",
        "failure": "Cuando no puede",
        "writing": "Al escribir",
        "guide": "Más información",
        "ids": "Identificador de despacho `{}`, contexto de ayuda {}.",
        "class id": "Contexto de ayuda {}.",
        "events": "Eventos",
        "event": "Evento de `{}`.",
        "engines": "Lo que recibe cada motor; un punto `·` al extremo de un texto representa un espacio:",
        "empty": "(vacío)",
        "call": "llamada",
        "late": "Es `{0}` del contrato [`iSQL20`]({1}). En la propia clase, y por tanto con enlace tardío, lleva "
                "`iSQL20_` delante; en una variable `As iSQL20` se llama `{0}`.",
        "contexts": "Contextos de ayuda",
        "contexts intro": "El número que tiene un examinador de bibliotecas de tipos o el `HelpContextID` de un "
                          "formulario, y la página a la que lleva. El archivo `contexts.ini` en la raíz del sitio "
                          "contiene lo mismo, una línea `número=página` por cada uno en su sección `contexts`.",
        "number": "número",
        "page": "página",
        "library": "QVRlib21",
    },
}
